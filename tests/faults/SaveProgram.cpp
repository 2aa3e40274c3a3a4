// Saves a text as the named file, as the window saves a comparison, to be stopped and failed from outside.
// Exit status 1 with a sentence on standard error where that fails.

#include <QCoreApplication>
#include <cstdio>

#include "ui/windows/SafeFile.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 3)
        return 2;
    const QString fault = Ledgrove::WriteWholeFile(QString::fromLocal8Bit(argv[1]), argv[2]);
    if (fault.isEmpty())
        return 0;
    std::fprintf(stderr, "%s\n", qPrintable(fault));
    return 1;
}
