// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QUrl>

/// The links of feeds.
namespace FeedLink {

/// The link as it stands, or made absolute where it is relative and the base is not.
QString resolved(const QString& link, const QUrl& base);

} // namespace FeedLink
