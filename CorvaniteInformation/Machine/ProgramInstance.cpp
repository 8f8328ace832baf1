#include "ProgramInstance.h"

#include <utility>

ProgramInstance::ProgramInstance(const std::optional<QString>& dataDirectory,
                                 const LocalFileManager& fileManager,
                                 const QProcessEnvironment& environment)
{
    if (!dataDirectory) {
        return;
    }
    auto lock = InstanceLock::take(*dataDirectory, fileManager);
    if (lock) {
        m_standing = Standing::First;
        m_lock = *std::move(lock);
        fileManager.removeLeftovers(*dataDirectory);
        connect(&m_channel, &InstanceChannel::activationRequested, this,
                &ProgramInstance::activationRequested);
        m_channel.listen(InstanceChannel::socketPath(*dataDirectory, environment));
    } else if (lock.error() == InstanceLock::Failure::Held) {
        m_standing = Standing::Later;
        InstanceChannel::requestActivation(
            InstanceChannel::socketPath(*dataDirectory, environment));
    }
}
