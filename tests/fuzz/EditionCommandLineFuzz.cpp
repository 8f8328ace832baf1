// SPDX-License-Identifier: Apache-2.0

// An argument a line.

#include "ArgumentInput.h"
#include "CommandLine.h"
#include "Invariant.h"

namespace {

using Command = CommandLine::Command;

/// The first argument, and the fewest and most paths after it.
struct Form
{
    QString name;
    qsizetype fewest;
    qsizetype most;
};

Form formOf(Command command)
{
    constexpr qsizetype any = 1 << 30;
    switch (command) {
    case Command::Help:
        return {u"--help"_qs, 0, 0};
    case Command::Version:
        return {u"--version"_qs, 0, 0};
    case Command::Draft:
        return {u"draft"_qs, 1, any};
    case Command::Check:
        return {u"check"_qs, 1, any};
    case Command::Next:
        return {u"next"_qs, 2, 2};
    case Command::Diff:
        return {u"diff"_qs, 2, 2};
    case Command::Site:
        return {u"site"_qs, 1, 1};
    }
    Q_UNREACHABLE();
}

/// The arguments behind the first that are paths: those before "--" that look like none are not.
QStringList pathsIn(const QStringList& arguments)
{
    QStringList options = arguments.sliced(1);
    QStringList paths;
    if (const auto end = options.indexOf(u"--"_qs); end >= 0) {
        paths = options.sliced(end + 1);
        options.resize(end);
    }
    options.removeIf([](const QString& option) { return option.startsWith(u'-'); });
    return options + paths;
}

void checkRead(const CommandLine& line, const QStringList& arguments)
{
    const Form form = formOf(line.command);
    invariant(arguments.first() == form.name, "the first argument says what is asked for");
    invariant(line.paths == pathsIn(arguments), "every path is taken, in order, and nothing else");
    invariant(line.paths.size() >= form.fewest && line.paths.size() <= form.most,
              "there are as many paths as are wanted");
    invariant(!line.isStrict ||
                  (line.command == Command::Check && arguments.contains(u"--strict"_qs)),
              "a check is strict where that is asked for");

    QStringList plain{form.name};
    if (line.isStrict) {
        plain.append(u"--strict"_qs);
    }
    invariant(CommandLine::parse(plain + QStringList(u"--"_qs) + line.paths) == line,
              "what is read can be asked for plainly");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QStringList arguments = inputArguments(data, size);
    const auto line = CommandLine::parse(arguments);
    if (line) {
        checkRead(*line, arguments);
    } else {
        invariant(!line.error().isEmpty() && isPlain(line.error(), 0),
                  "what is wrong is shown as it stands, in a line");
    }
    return 0;
}
