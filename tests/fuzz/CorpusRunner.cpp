// SPDX-License-Identifier: Apache-2.0

// Gives a target every file of the folders that are named, as libFuzzer would.

#include "FuzzTarget.h"

#include <QDir>
#include <QFile>

#include <cstdio>

namespace {

bool run(const QString& path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return false;
    }
    // Stands before what an abort prints.
    std::printf("%s\n", qPrintable(path));
    std::fflush(stdout);
    const QByteArray input = file.readAll();
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           static_cast<std::size_t>(input.size()));
    return true;
}

bool runAll(const QString& folder)
{
    const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    if (names.isEmpty()) {
        std::fprintf(stderr, "no input in %s\n", qPrintable(folder));
        return false;
    }
    for (const QString& name : names) {
        if (!run(folder + u'/' + name)) {
            return false;
        }
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s FOLDER...\n", argv[0]);
        return EXIT_FAILURE;
    }
    for (int index = 1; index < argc; ++index) {
        if (!runAll(QString::fromLocal8Bit(argv[index]))) {
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
