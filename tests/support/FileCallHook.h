// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <cstddef>
#include <functional>
#include <optional>

/// Stands between the program and the system calls that a file is read and replaced by. A test
/// program that FileCallHook.cpp is linked into has those calls go through here.
struct FileCallHook
{
    /// Called before each call with its number from 1 and its name; an error number that it returns
    /// is what the call fails with.
    std::function<std::optional<int>(int number, const char* name)> before;
    /// The most bytes that one read or write takes; nothing for no limit.
    std::optional<std::size_t> longestTransfer = std::nullopt;

    /// Runs the action with this hook in place. Not for more than one thread.
    void during(const std::function<void()>& action) const;
};
