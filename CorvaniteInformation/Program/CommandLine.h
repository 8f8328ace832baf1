// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

/// What the program is asked for on the terminal instead of opening its window.
namespace CommandLine {

struct Answer
{
    QString text;
    /// Of the process; an answer that is no success belongs to the error output.
    int exitCode;

    friend bool operator==(const Answer&, const Answer&) = default;
};

/// That the window opens, or the one that is open comes to the front.
struct Window
{
    friend bool operator==(const Window&, const Window&) = default;
};

/// That what the reader keeps is written to a file.
struct Export
{
    static constexpr QLatin1StringView standardOutput{"-"};

    /// Its ending says the format; `standardOutput` for none.
    QString file;
    /// To be read in the place of the data directory's own.
    std::optional<QString> workspace;

    friend bool operator==(const Export&, const Export&) = default;
};

using Request = std::variant<Window, Export, Answer>;

/// @param arguments without the program's name
Request request(const QStringList& arguments, const QString& version);

/// That the program which works with the data directory cannot be reached.
Answer unanswered();

/// Of a request that is understood and cannot be fulfilled.
Answer failure(const QString& reason);

} // namespace CommandLine
