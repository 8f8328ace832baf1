#pragma once

#include <QDir>
#include <QFile>
#include <QStringList>

#include <sys/stat.h>

/// The whole file; null when it cannot be read.
inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
}

/// The names in a folder, hidden and dangling ones included, in order.
inline QStringList namesIn(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

/// The permission bits of what is at the path itself, be it a link.
inline int modeOf(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0
               ? static_cast<int>(status.st_mode & 07777)
               : -1;
}
