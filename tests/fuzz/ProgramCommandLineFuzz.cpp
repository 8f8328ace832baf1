// SPDX-License-Identifier: Apache-2.0

// An argument a line.

#include "ArgumentInput.h"
#include "CommandLine.h"
#include "Invariant.h"
#include "KeptExport.h"

namespace {

using CommandLine::Answer;
using CommandLine::Export;
using CommandLine::Window;

const QStringList answeredOptions{u"--help"_qs, u"-h"_qs, u"--version"_qs, u"-v"_qs};

void checkWindow(const QStringList& arguments)
{
    invariant(arguments.isEmpty() || (arguments.size() == 2 && arguments.first() == u"-session"_qs),
              "the window opens for nothing but a start and a session manager's");
}

void checkExport(const Export& request, const QStringList& arguments)
{
    const QStringList asked = QStringList{u"--export-kept"_qs, request.file} +
                              (request.workspace ? QStringList(*request.workspace) : QStringList());
    invariant(asked == arguments, "an export is asked for word by word");
    invariant(request.file == Export::standardOutput || KeptExport::formatOf(request.file),
              "an export has a format");
}

void checkAnswer(const Answer& answer, const QStringList& arguments)
{
    const bool isAsked = arguments.size() == 1 && answeredOptions.contains(arguments.first());
    invariant(answer.exitCode == (isAsked ? 0 : 2),
              "only what was asked for and understood is a success");
    if (!isAsked) {
        invariant(answer.text.startsWith(u"corvanite-information：") &&
                      answer.text.endsWith(u"用 --help 查看用法。\n"),
                  "a refusal says who refuses, and what to do");
        invariant(isPlain(answer.text, 2), "a refusal is shown as it stands, in two lines");
    }
}

void checkFailure(const QStringList& arguments)
{
    const Answer failure = CommandLine::failure(arguments.join(u'\n'));
    invariant(failure.exitCode == 1 && isPlain(failure.text, 1),
              "a failure is shown as it stands, in a line");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QStringList arguments = inputArguments(data, size);
    const auto request = CommandLine::request(arguments, u"1.2.3"_qs);
    if (const auto* const answer = std::get_if<Answer>(&request)) {
        checkAnswer(*answer, arguments);
    } else if (const auto* const keptExport = std::get_if<Export>(&request)) {
        checkExport(*keptExport, arguments);
    } else {
        checkWindow(arguments);
    }
    checkFailure(arguments);
    return 0;
}
