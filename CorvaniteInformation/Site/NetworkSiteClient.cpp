// SPDX-License-Identifier: Apache-2.0

#include "NetworkSiteClient.h"

#include "BodyLength.h"
#include "SiteRequest.h"

#include <QCoroNetworkReply>
#include <QNetworkReply>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <utility>

namespace {

struct DeleteLater
{
    void operator()(QNetworkReply* reply) const { reply->deleteLater(); }
};

// Takes what came, at most one byte beyond the limit.
void readOn(QNetworkReply& reply, QByteArray& body, qsizetype byteLimit)
{
    constexpr qsizetype pieceBytes = 64 * 1024;
    while (body.size() <= byteLimit && reply.bytesAvailable() > 0) {
        const QByteArray piece = reply.read(std::min(pieceBytes, byteLimit + 1 - body.size()));
        if (piece.isEmpty()) {
            return;
        }
        body += piece;
    }
}

// Qt 6.4 takes many a body that was cut short for a whole one.
bool isCutShort(const QNetworkReply& reply, const QByteArray& body)
{
    const QVariant length = reply.header(QNetworkRequest::ContentLengthHeader);
    const auto announced =
        length.isValid() ? std::optional(length.toLongLong()) : std::optional<qint64>();
    return BodyLength::isCutShort(announced, reply.rawHeader("Content-Encoding"), body.size());
}

SiteClient::Answer answerIn(const QNetworkReply& reply, const QByteArray& body, qsizetype byteLimit)
{
    if (body.size() > byteLimit) {
        return std::unexpected(SiteError::TooLarge);
    }
    const QVariant statusCode = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const auto status =
        statusCode.isValid() ? std::optional(statusCode.toInt()) : std::optional<int>();
    const bool isErrorStatus = status && *status >= 400;
    const bool isBroken = reply.error() != QNetworkReply::NoError || isCutShort(reply, body);
    if (isBroken && !isErrorStatus) {
        return std::unexpected(SiteError::Transport);
    }
    return SiteReply{body, status};
}

} // namespace

NetworkSiteClient::NetworkSiteClient(ProductSite site, Limits limits)
    : m_site(std::move(site)), m_limits(limits)
{
}

NetworkSiteClient::~NetworkSiteClient()
{
    for (auto* reply : m_network.findChildren<QNetworkReply*>()) {
        reply->abort();
    }
}

QCoro::Task<SiteClient::Answer> NetworkSiteClient::get(QString path, qsizetype byteLimit)
{
    const QDeadlineTimer deadline(m_limits.overall);
    QUrl url = m_site.url(path);
    for (int redirects = 0; redirects <= m_limits.redirects; ++redirects) {
        const Response response = co_await load(url, byteLimit, deadline);
        if (!response.answer || !response.redirectTarget) {
            co_return response.answer;
        }
        const QUrl target = url.resolved(*response.redirectTarget);
        if (!m_site.owns(target)) {
            break;
        }
        url = target;
    }
    co_return std::unexpected(SiteError::Transport);
}

QCoro::Task<NetworkSiteClient::Response> NetworkSiteClient::load(QUrl url, qsizetype byteLimit,
                                                                 QDeadlineTimer deadline)
{
    const std::unique_ptr<QNetworkReply, DeleteLater> reply(
        m_network.get(siteRequest(url, m_limits.silence)));
    // What waits unread is bounded, yet never less than a body that is taken: Qt 6.4 may wait for
    // ever at a full buffer whose connection has ended.
    reply->setReadBufferSize(byteLimit + 1);

    QTimer timeLeft;
    timeLeft.setSingleShot(true);
    timeLeft.callOnTimeout(reply.get(), &QNetworkReply::abort);
    timeLeft.start(
        std::chrono::ceil<std::chrono::milliseconds>(deadline.remainingTimeAsDuration()));

    QByteArray body;
    QObject::connect(reply.get(), &QNetworkReply::readyRead, &timeLeft,
                     [reply = reply.get(), &body, byteLimit] {
                         readOn(*reply, body, byteLimit);
                         if (body.size() > byteLimit) {
                             reply->abort();
                         }
                     });
    co_await reply.get();
    readOn(*reply, body, byteLimit);

    const QVariant target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute);
    co_return Response{answerIn(*reply, body, byteLimit),
                       target.isValid() ? std::optional(target.toUrl()) : std::nullopt};
}
