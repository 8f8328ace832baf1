#pragma once

#include <QLatin1StringView>
#include <QString>
#include <QUrl>

#include <optional>

/// The one web site that the program reads from and links to.
class ProductSite
{
public:
    /// The documents that the site publishes.
    static constexpr QLatin1StringView packPath{"/information-pack.json"};
    static constexpr QLatin1StringView retiredSignalsPath{"/retired-signals.json"};
    static constexpr QLatin1StringView appVersionPath{"/information-app-version.json"};

    /// The site at a base URL: https with a host, http for a loopback host only, and neither user
    /// information nor query nor fragment. Nothing for any other text.
    static std::optional<ProductSite> fromOrigin(const QString& origin);

    const QUrl& siteOrigin() const { return m_siteOrigin; }
    /// Of the live pack.
    QUrl productionURL() const { return url(packPath); }
    /// In the form that addresses are compared in: lower case, an international name in ASCII.
    QString host() const { return m_siteOrigin.host(QUrl::FullyEncoded); }
    /// The path below the base URL, joined with exactly one "/".
    QUrl url(const QString& path) const;

    friend bool operator==(const ProductSite&, const ProductSite&) = default;

private:
    explicit ProductSite(QUrl siteOrigin);

    QUrl m_siteOrigin;
};
