// SPDX-License-Identifier: Apache-2.0

// The program without its window, for tests in which the kernel fails its calls. It does the action
// that each line of its input names and answers with one line of what is seen then.

#include "ReaderActions.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <cstdio>
#include <iostream>
#include <string>

namespace {

void answer(ProgramStart& program)
{
    const auto seen = QJsonDocument(ReaderActions::seenIn(program)).toJson(QJsonDocument::Compact);
    std::puts(seen.constData());
    std::fflush(stdout);
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    ProgramStart program(QProcessEnvironment::systemEnvironment());
    answer(program);
    for (std::string name; std::getline(std::cin, name);) {
        ReaderActions::all().value(QString::fromStdString(name))(program.model());
        answer(program);
    }
    return EXIT_SUCCESS;
}
