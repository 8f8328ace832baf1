// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FieldHash.h"

#include <QString>

/// One dated event in the history of an item.
struct InformationTimelineEvent
{
    /// The day as it is shown.
    QString dateLabel;
    /// ISO 8601 date-time.
    QString date;
    QString summary;
    QString source;

    friend bool operator==(const InformationTimelineEvent&,
                           const InformationTimelineEvent&) = default;
};

inline size_t qHash(const InformationTimelineEvent& event, size_t seed = 0) noexcept
{
    return FieldHash::hash(seed, event.dateLabel, event.date, event.summary, event.source);
}
