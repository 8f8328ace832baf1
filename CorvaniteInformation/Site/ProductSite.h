// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// The one web site that the program reads from and links to.
class ProductSite
{
public:
    /// The site at a base URL: https with a host, http for a loopback host only, and neither user
    /// information nor query nor fragment. Nothing for any other text.
    static std::optional<ProductSite> fromOrigin(const QString& origin);

    const QUrl& siteOrigin() const { return m_siteOrigin; }
    /// In the form that addresses are compared in: lower case, an international name in ASCII.
    QString host() const { return m_siteOrigin.host(QUrl::FullyEncoded); }
    /// Whether the address lies on the site: its scheme and host, or the host with or without a
    /// leading "www.", and no user information.
    bool owns(const QUrl& url) const;
    /// The path below the base URL, joined with exactly one "/".
    QUrl url(const QString& path) const;

    friend bool operator==(const ProductSite&, const ProductSite&) = default;

private:
    explicit ProductSite(QUrl siteOrigin);

    QUrl m_siteOrigin;
};
