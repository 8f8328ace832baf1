// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Feed.h"

#include <QByteArray>
#include <QList>

/// Drafts of signals, for a person to choose from and to fill in.
namespace DraftPack {

/// A pack with one signal for every entry of the feeds, in their order; an address that comes again
/// is drafted once. What only a person can say is empty, and `corvanite-edition check` tells of it.
/// @param now milliseconds since 1970-01-01T00:00:00Z: when the entries were observed
QByteArray of(const QList<Feed>& feeds, qint64 now);

} // namespace DraftPack
