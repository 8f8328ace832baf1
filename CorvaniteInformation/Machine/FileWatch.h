// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QFileSystemWatcher>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

/// Tells that a file may be another: replaced, written, removed, back, or open to its reader again,
/// whoever did it. Does nothing between such changes. What another machine does to a shared folder
/// may stay unknown to the system, and so untold.
class FileWatch : public QObject
{
    Q_OBJECT

public:
    /// Many changes within this time are told once, after it.
    static constexpr std::chrono::milliseconds pause{200};

    /// @param path of a file that may be missing, a link, or in a missing folder
    explicit FileWatch(QString path, QObject* parent = nullptr);

    /// Tells at once, as if the file had changed, and watches what is at the path by now.
    void look();

Q_SIGNALS:
    void changed();

private:
    void watch();

    const QString m_path;
    QFileSystemWatcher m_watcher;
    QTimer m_pause;
};
