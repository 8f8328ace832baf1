// SPDX-License-Identifier: Apache-2.0

#include "ProgramInstance.h"

#include <QThread>

#include <utility>

namespace {

constexpr int furtherAttempts = 40;
constexpr unsigned long pauseMilliseconds = 50;

} // namespace

ProgramInstance::ProgramInstance(const std::optional<QString>& dataDirectory,
                                 const LocalFileManager& fileManager,
                                 const QByteArray& activationToken)
    : m_dataDirectory(dataDirectory), m_fileManager(fileManager)
{
    connect(&m_channel, &InstanceChannel::activationRequested, this,
            &ProgramInstance::activationRequested);
    if (m_dataDirectory) {
        m_standing = findStanding(activationToken);
    }
}

// Whoever holds the lock or is listening may be on its way, up or down: so it is asked for a while,
// and its place is taken when it has gone. The socket counts beside the lock, for the lock's file
// may have been deleted under the running program.
ProgramInstance::Standing ProgramInstance::findStanding(const QByteArray& activationToken)
{
    for (int left = furtherAttempts;; --left) {
        auto lock = InstanceLock::take(*m_dataDirectory, m_fileManager);
        const bool isHeld = !lock && lock.error().reason == FileError::Reason::InUse;
        const auto name = InstanceChannel::nameFor(*m_dataDirectory);
        if (!isHeld && (m_channel.listen(name) || left == 0)) {
            if (!lock) {
                return Standing::WithoutLock;
            }
            become(*std::move(lock));
            return Standing::First;
        }
        if (InstanceChannel::requestActivation(name, activationToken)) {
            return Standing::Later;
        }
        if (left == 0) {
            return Standing::Unanswered;
        }
        QThread::msleep(pauseMilliseconds);
    }
}

std::expected<void, FileError> ProgramInstance::hold()
{
    if (!m_dataDirectory) {
        return std::unexpected(FileError{FileError::Reason::FolderMissing});
    }
    if (m_lock) {
        const auto isInPlace = m_lock->isInPlace();
        if (!isInPlace) {
            return std::unexpected(isInPlace.error());
        }
        if (*isInPlace) {
            return {};
        }
    }
    auto lock = InstanceLock::take(*m_dataDirectory, m_fileManager);
    if (!lock) {
        return std::unexpected(lock.error());
    }
    become(*std::move(lock));
    return {};
}

void ProgramInstance::become(InstanceLock lock)
{
    m_lock = std::move(lock);
    m_standing = Standing::First;
    m_fileManager.removeLeftovers(*m_dataDirectory);
}
