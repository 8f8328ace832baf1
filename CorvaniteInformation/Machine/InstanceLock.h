#pragma once

#include "InformationFileManager.h"

#include <QString>

#include <expected>

/// The right to be the one program that works with a data directory: a kernel lock on the file
/// `.lock` in it. It ends with the object, and with the process in whatever way that ends.
class InstanceLock
{
public:
    enum class Failure {
        /// Another running program holds the lock.
        Held,
        /// The directory or the file cannot be made or locked.
        Unavailable
    };

    /// Takes the lock without waiting; makes the directory and the file where needed, for this
    /// user only.
    static std::expected<InstanceLock, Failure> take(const QString& directory,
                                                     const InformationFileManager& fileManager);

    InstanceLock(InstanceLock&& other) noexcept;
    InstanceLock& operator=(InstanceLock&& other) noexcept;
    ~InstanceLock();

private:
    explicit InstanceLock(int descriptor) : m_descriptor(descriptor) {}

    int m_descriptor;
};
