// SPDX-License-Identifier: Apache-2.0

#include "ProductSite.h"

#include <QHostAddress>

#include <utility>

namespace {

bool isLoopback(const QString& host)
{
    return host == u"localhost" || QHostAddress(host).isLoopback();
}

QString withoutWww(const QString& host)
{
    constexpr QStringView www(u"www.");
    return host.startsWith(www) ? host.sliced(www.size()) : host;
}

} // namespace

ProductSite::ProductSite(QUrl siteOrigin) : m_siteOrigin(std::move(siteOrigin)) {}

std::optional<ProductSite> ProductSite::fromOrigin(const QString& origin)
{
    const QUrl url(origin, QUrl::StrictMode);
    const bool isSecure =
        url.scheme() == u"https" || (url.scheme() == u"http" && isLoopback(url.host()));
    const bool isPlain = url.userInfo().isEmpty() && !url.hasQuery() && !url.hasFragment();
    if (!url.isValid() || url.host().isEmpty() || !isSecure || !isPlain) {
        return std::nullopt;
    }
    return ProductSite(url);
}

bool ProductSite::owns(const QUrl& url) const
{
    return url.isValid() && url.scheme() == m_siteOrigin.scheme() &&
           withoutWww(url.host(QUrl::FullyEncoded)) == withoutWww(host()) &&
           url.userInfo().isEmpty();
}

QUrl ProductSite::url(const QString& path) const
{
    QString basePath = m_siteOrigin.path();
    while (basePath.endsWith(u'/')) {
        basePath.chop(1);
    }
    QUrl joined = m_siteOrigin;
    joined.setPath(basePath + (path.startsWith(u'/') ? path : u'/' + path));
    return joined;
}
