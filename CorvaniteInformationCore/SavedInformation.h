// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FieldHash.h"

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

inline size_t qHash(const SavedInformation& saved, size_t seed = 0) noexcept
{
    return FieldHash::hash(seed, saved.savedAt.time_since_epoch().count(), saved.saveReason,
                           saved.note);
}
