// SPDX-License-Identifier: Apache-2.0

#include "FileWatch.h"

#include <QFileInfo>

#include <utility>

namespace {

// The folders tell of files that come, go and take another's place, the file of what is written
// into it.
QStringList watchedPaths(const QString& path)
{
    const QFileInfo file(path);
    QStringList paths{path, file.path()};
    if (file.isSymLink()) {
        paths.append(QFileInfo(file.symLinkTarget()).path());
    }
    paths.removeIf([](const QString& watched) { return !QFileInfo(watched).isReadable(); });
    return paths;
}

} // namespace

FileWatch::FileWatch(QString path, QObject* parent) : QObject(parent), m_path(std::move(path))
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    const auto wait = [this] {
        if (!m_pause.isActive()) {
            m_pause.start();
        }
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, wait);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, wait);
    connect(&m_pause, &QTimer::timeout, this, &FileWatch::look);
    watch();
}

void FileWatch::look()
{
    m_pause.stop();
    watch();
    Q_EMIT changed();
}

// Anew each time: another file or folder may be at the path by now, and the watcher goes on with
// the old one.
void FileWatch::watch()
{
    if (const auto watched = m_watcher.files() + m_watcher.directories(); !watched.isEmpty()) {
        m_watcher.removePaths(watched);
    }
    if (const auto paths = watchedPaths(m_path); !paths.isEmpty()) {
        m_watcher.addPaths(paths);
    }
}
