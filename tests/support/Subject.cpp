// SPDX-License-Identifier: Apache-2.0

#include "Subject.h"

#include <QMap>
#include <QTest>

#include <cstdio>

namespace {

QMap<QByteArray, Subject::Make>& subjects()
{
    static QMap<QByteArray, Subject::Make> known;
    return known;
}

} // namespace

bool Subject::add(const char* name, Make make)
{
    subjects().insert(name, make);
    return true;
}

int Subject::run(int argc, char* argv[])
{
    const auto make = argc > 1 ? subjects().value(argv[1]) : nullptr;
    if (!make) {
        std::fprintf(stderr, "Name one of: %s\n", subjects().keys().join(' ').constData());
        return EXIT_FAILURE;
    }
    argv[1] = argv[0];
    return QTest::qExec(make().get(), argc - 1, argv + 1);
}
