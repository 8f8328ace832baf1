// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InstanceChannel.h"
#include "InstanceLock.h"
#include "LocalFileManager.h"

#include <QObject>

#include <optional>

/// This process among those started for the same data directory. The first one works with the
/// directory; a later one asks the first to come up and should end.
class ProgramInstance : public QObject
{
    Q_OBJECT

public:
    enum class Standing {
        /// Holds the directory.
        First,
        /// The first has been asked to come up.
        Later,
        /// Another process holds the directory and does not answer.
        Unanswered,
        /// The directory cannot be held for now: it may be read, and `hold` says why nothing can be
        /// stored in it.
        WithoutLock
    };
    Q_ENUM(Standing)

    /// @param dataDirectory nothing where the environment names none
    /// @param fileManager outlives the instance
    /// @param activationToken what the desktop gave to this start, for a first one to come up by
    ProgramInstance(const std::optional<QString>& dataDirectory,
                    const LocalFileManager& fileManager, const QByteArray& activationToken = {});

    Standing standing() const { return m_standing; }

    /// To be called before anything is stored in the directory. Holds it anew where it was deleted
    /// meanwhile or could not be held before; never beside another process.
    std::expected<void, FileError> hold();

Q_SIGNALS:
    /// A later start asks this process to come up.
    /// @param token by which the desktop lets it, or empty
    void activationRequested(const QByteArray& token);

private:
    Standing findStanding(const QByteArray& activationToken);
    void become(InstanceLock lock);

    const std::optional<QString> m_dataDirectory;
    const LocalFileManager& m_fileManager;
    std::optional<InstanceLock> m_lock;
    InstanceChannel m_channel;
    Standing m_standing = Standing::WithoutLock;
};
