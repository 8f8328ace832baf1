// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CommandLine.h"
#include "Finding.h"

#include <QTextStream>

/// What the program does. Results go to `output`; `messages` tells why there is none.
class EditionCommands
{
public:
    /// Exit codes.
    static constexpr int done = 0;
    static constexpr int problemFound = 1;
    static constexpr int misused = 2;

    /// @param now milliseconds since 1970-01-01T00:00:00Z
    /// @param siteHost the host that the program takes downloads from
    EditionCommands(QTextStream& output, QTextStream& messages, qint64 now, QString siteHost);

    /// @return the exit code
    int run(const QStringList& arguments);

private:
    int draft(const QStringList& feeds);
    int check(const QStringList& files, bool isStrict);
    int next(const QString& published, const QString& next);
    int diff(const QString& before, const QString& after);
    int site(const QString& folder);

    int refuse(const Finding& finding);

    QTextStream& m_output;
    QTextStream& m_messages;
    qint64 m_now;
    QString m_siteHost;
};
