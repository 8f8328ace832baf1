// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

#include <expected>

/// What the curator asked for.
struct CommandLine
{
    enum class Command { Help, Version, Draft, Check, Next, Diff, Site };

    Command command;
    QStringList paths;
    /// Of `check`: hints count as errors.
    bool isStrict = false;

    /// @param arguments without the program's name
    /// @return else what is wrong with them, in Chinese
    static std::expected<CommandLine, QString> parse(const QStringList& arguments);

    /// How to call the program.
    static QString usage();

    friend bool operator==(const CommandLine&, const CommandLine&) = default;
};
