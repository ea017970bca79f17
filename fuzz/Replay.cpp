// Runs a target over the files of folders: what a fuzzer once found stays found, without a fuzzer.

#include "FuzzTarget.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>

#include <cstdio>

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    int files = 0;
    for (int i = 1; i < argc; ++i) {
        QDirIterator entries(QFile::decodeName(argv[i]), QDir::Files);
        while (entries.hasNext()) {
            QFile file(entries.next());
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            std::printf("%s\n", qPrintable(file.fileName()));
            std::fflush(stdout);
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(bytes.constData()),
                                   std::size_t(bytes.size()));
            ++files;
        }
    }
    std::printf("%d files\n", files);
    return files > 0 ? 0 : 1;
}
