#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the program answers on the terminal instead of opening its window.
namespace CommandLine {

struct Answer
{
    QString text;
    /// Of the process; an answer that is no success belongs to the error output.
    int exitCode;

    friend bool operator==(const Answer&, const Answer&) = default;
};

/// Nothing where the window is to open.
/// @param arguments without the program's name
std::optional<Answer> answer(const QStringList& arguments, const QString& version);

/// That the program which works with the data directory cannot be reached.
Answer unanswered();

} // namespace CommandLine
