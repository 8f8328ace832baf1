// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FileTree.h"

#include <QDateTime>
#include <QProcessEnvironment>
#include <QRegularExpression>
#include <QTemporaryDir>

/// A folder for one run of the program, with its data directory and a place elsewhere that a link
/// in the data directory may lead to.
class DataFolder
{
public:
    static inline const QString storage = u"support/Corvanite/Information"_qs;
    static inline const QString workspace = storage + u"/workspace-v1.json"_qs;
    static inline const QString previous = storage + u"/workspace-v1.previous.json"_qs;
    static inline const QString pack = storage + u"/information-pack.json"_qs;
    static inline const QString retired = storage + u"/retired-signals.json"_qs;
    static inline const QString elsewhere = u"elsewhere"_qs;
    static inline const QString linked = elsewhere + u"/kept.json"_qs;
    /// A name as a killed save leaves it.
    static inline const QString leftover = u".corvanite-0123456789abcdef.tmp"_qs;

    DataFolder() { QDir(m_root.path()).mkdir(u"support"_qs); }

    QString path(const QString& name = {}) const
    {
        return QDir(QDir(m_root.path()).canonicalPath()).filePath(name);
    }
    QString support() const { return path(u"support"_qs); }
    /// Where the program's socket is made.
    QString runtime() const { return m_runtime.path(); }
    /// The system's, with this folder as the reader's.
    QProcessEnvironment environment() const
    {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_qs, support());
        environment.insert(u"XDG_RUNTIME_DIR"_qs, runtime());
        return environment;
    }

    QByteArray content(const QString& name) const { return contentOf(path(name)); }
    /// Makes the file's folder too.
    void store(const QString& name, const QByteArray& bytes) const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        writeFile(path(name), bytes);
    }

    /// Sets when the file was last written, in seconds since 1970.
    void setWrittenAt(const QString& name, qint64 seconds) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::ReadWrite) ||
            !file.setFileTime(QDateTime::fromSecsSinceEpoch(seconds),
                              QFileDevice::FileModificationTime)) {
            qFatal("%s has no time", qUtf8Printable(name));
        }
    }

    /// The temporary files that saves left.
    QStringList leftovers() const
    {
        return (namesIn(path(storage)) + namesIn(path(elsewhere)))
            .filter(QRegularExpression(u"^\\.corvanite-.*\\.tmp$"_qs));
    }

private:
    QTemporaryDir m_root;
    QTemporaryDir m_runtime;
};
