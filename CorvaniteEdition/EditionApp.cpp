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
    return commands.run(arguments);
}
