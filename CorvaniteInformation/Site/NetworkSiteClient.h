// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "ProductSite.h"
#include "SiteClient.h"

#include <QDeadlineTimer>
#include <QNetworkAccessManager>

#include <chrono>
#include <optional>

/// The product site over HTTP. Nothing of a request names the reader, the program's version or the
/// machine, and nothing is remembered from one request to the next.
class NetworkSiteClient final : public SiteClient
{
public:
    struct Limits
    {
        /// Without a byte.
        std::chrono::milliseconds silence = std::chrono::seconds(60);
        /// From the request to the body's last byte.
        std::chrono::milliseconds overall = std::chrono::minutes(5);
        int redirects = 5;
    };

    NetworkSiteClient(ProductSite site, Limits limits);
    ~NetworkSiteClient() override;

    QString host() const override { return m_site.host(); }
    QUrl page(const QString& path) const override { return m_site.url(path); }
    QCoro::Task<Answer> get(QString path, qsizetype byteLimit) override;

private:
    struct Response
    {
        Answer answer;
        std::optional<QUrl> redirectTarget;
    };

    /// One step of a request, without following where it leads.
    QCoro::Task<Response> load(QUrl url, qsizetype byteLimit, QDeadlineTimer deadline);

    const ProductSite m_site;
    const Limits m_limits;
    QNetworkAccessManager m_network;
};
