// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <optional>

/// One entry of a feed; texts are plain and empty where the feed has none.
struct FeedEntry
{
    /// The feed's own name for the entry.
    QString id;
    QString title;
    QString summary;
    /// Absolute wherever the feed says what it begins at.
    QString link;
    /// In the form of a pack; nothing where the feed gives no time that reads.
    std::optional<QString> publishedAt;

    friend bool operator==(const FeedEntry&, const FeedEntry&) = default;
};
