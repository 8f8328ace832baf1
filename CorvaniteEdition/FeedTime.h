// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// The times of feeds.
namespace FeedTime {

/// In the form of a pack, "2026-08-27T04:01:03.784Z": an ISO 8601 date-time or date, or a date-time
/// of mail (RFC 822 and 2822). Nothing for a text that is none, or that names no zone.
std::optional<QString> stamp(QStringView text);

/// The form of a pack.
/// @param milliseconds since 1970-01-01T00:00:00Z
QString stampOf(qint64 milliseconds);

} // namespace FeedTime
