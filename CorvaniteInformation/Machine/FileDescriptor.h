// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <unistd.h>

#include <utility>

/// Owns an open file descriptor, or none (negative).
class FileDescriptor
{
public:
    explicit FileDescriptor(int descriptor) : m_descriptor(descriptor) {}
    ~FileDescriptor()
    {
        if (isOpen()) {
            ::close(m_descriptor);
        }
    }
    FileDescriptor(FileDescriptor&& other) noexcept : m_descriptor(other.release()) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }

    bool isOpen() const { return m_descriptor >= 0; }
    int get() const { return m_descriptor; }

    /// Gives the descriptor away.
    int release() { return std::exchange(m_descriptor, -1); }

private:
    int m_descriptor;
};
