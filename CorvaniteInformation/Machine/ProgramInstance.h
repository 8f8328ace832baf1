#pragma once

#include "InstanceChannel.h"
#include "InstanceLock.h"
#include "LocalFileManager.h"

#include <QObject>
#include <QProcessEnvironment>

#include <optional>

/// This process among those started for the same data directory. The first one works with the
/// directory; a later one asks the first to come up and should end.
class ProgramInstance : public QObject
{
    Q_OBJECT

public:
    enum class Standing {
        First,
        Later,
        /// The directory cannot be held, so nothing may be stored in it.
        WithoutStorage
    };
    Q_ENUM(Standing)

    /// @param dataDirectory nothing where the environment names none
    ProgramInstance(const std::optional<QString>& dataDirectory,
                    const LocalFileManager& fileManager, const QProcessEnvironment& environment);

    Standing standing() const { return m_standing; }

Q_SIGNALS:
    /// A later start asks this process to come up.
    void activationRequested();

private:
    std::optional<InstanceLock> m_lock;
    InstanceChannel m_channel;
    Standing m_standing = Standing::WithoutStorage;
};
