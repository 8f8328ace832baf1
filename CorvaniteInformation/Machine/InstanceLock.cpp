#include "InstanceLock.h"

#include <QFile>

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace {

constexpr int noDescriptor = -1;

} // namespace

std::expected<InstanceLock, InstanceLock::Failure>
InstanceLock::take(const QString& directory, const InformationFileManager& fileManager)
{
    if (!fileManager.createDirectory(directory)) {
        return std::unexpected(Failure::Unavailable);
    }
    const auto path = QFile::encodeName(directory + u"/.lock"_qs);
    const int descriptor =
        ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (descriptor == noDescriptor) {
        return std::unexpected(Failure::Unavailable);
    }
    InstanceLock lock(descriptor);
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        return std::unexpected(errno == EWOULDBLOCK ? Failure::Held : Failure::Unavailable);
    }
    return lock;
}

InstanceLock::InstanceLock(InstanceLock&& other) noexcept
    : m_descriptor(std::exchange(other.m_descriptor, noDescriptor))
{
}

InstanceLock& InstanceLock::operator=(InstanceLock&& other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

InstanceLock::~InstanceLock()
{
    if (m_descriptor != noDescriptor) {
        ::close(m_descriptor);
    }
}
