#pragma once

#include <QString>

#include <chrono>

/// What the workspace holds of a kept signal.
struct SavedInformation
{
    /// When the signal was first kept.
    std::chrono::sys_seconds savedAt;
    /// The signal's `why` at that moment.
    QString saveReason;
    /// The reader's own note; empty when kept.
    QString note;

    friend bool operator==(const SavedInformation&, const SavedInformation&) = default;
};
