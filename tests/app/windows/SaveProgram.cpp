// Saves standard input as the named file, as the window saves a comparison. Exit status 1 with a sentence on
// standard error where that fails.

#include <QCoreApplication>
#include <QFile>
#include <cstdio>

#include "ui/windows/SafeFile.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QFile input;
    if (argc != 2 || !input.open(stdin, QIODevice::ReadOnly))
        return 2;
    const QString fault = Ledgrove::WriteWholeFile(QString::fromLocal8Bit(argv[1]), input.readAll());
    if (fault.isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(fault));
    return 1;
}
