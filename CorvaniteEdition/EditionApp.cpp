// SPDX-License-Identifier: Apache-2.0

#include "EditionCommands.h"

#include <QDateTime>
#include <QUrl>

#include <cstdio>

int main(int argc, char* argv[])
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index) {
        arguments.append(QString::fromLocal8Bit(argv[index]));
    }
    QTextStream output(stdout);
    QTextStream messages(stderr);
    const QString siteHost = QUrl(QStringLiteral(CORVANITE_SITE_ORIGIN)).host(QUrl::FullyEncoded);
    EditionCommands commands(output, messages, QDateTime::currentMSecsSinceEpoch(), siteHost);
    const int exitCode = commands.run(arguments);
    output.flush();
    // What was asked for and did not arrive is no success: a full disk behind a redirection.
    const bool hasArrived = output.status() == QTextStream::Ok && std::fflush(stdout) == 0;
    return hasArrived ? exitCode : EditionCommands::problemFound;
}
