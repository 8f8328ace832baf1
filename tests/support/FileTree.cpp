// SPDX-License-Identifier: Apache-2.0

#include "FileTree.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
}

void makeLink(const QString& target, const QString& path)
{
    if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()) !=
        0) {
        qFatal("%s cannot be linked", qUtf8Printable(path));
    }
}

QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

int modeOf(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0
               ? static_cast<int>(status.st_mode & 07777)
               : -1;
}
