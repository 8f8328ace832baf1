// SPDX-License-Identifier: Apache-2.0

#include "FeedLink.h"

QString FeedLink::resolved(const QString& link, const QUrl& base)
{
    const QUrl url(link);
    const bool resolves = !link.isEmpty() && url.isRelative() && !base.isRelative();
    return resolves ? base.resolved(url).toString(QUrl::FullyEncoded) : link;
}
