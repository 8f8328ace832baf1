// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FeedEntry.h"

#include <QList>

/// A feed as it was read from a file.
struct Feed
{
    /// The file's name as the curator gave it.
    QString file;
    QString title;
    /// Where the feed or its site lies; what relative links begin at. Empty when the feed is
    /// silent.
    QString address;
    QList<FeedEntry> entries;

    friend bool operator==(const Feed&, const Feed&) = default;
};
