// Saves a text under the given file name as the window saves a comparison, so that a test can stop or fail
// the save. On failure it prints a message to standard error and ends with status 1.

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
