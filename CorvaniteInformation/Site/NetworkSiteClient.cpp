#include "NetworkSiteClient.h"

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
    const QVariant announced = reply.header(QNetworkRequest::ContentLengthHeader);
    return announced.isValid() && !reply.hasRawHeader("Content-Encoding") &&
           body.size() < announced.toLongLong();
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

bool isSafeStep(const QUrl& from, const QUrl& to)
{
    return to.scheme() == u"https" || (to.scheme() == u"http" && from.scheme() == u"http");
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
        if (!isSafeStep(url, target)) {
            break;
        }
        url = target;
    }
    co_return std::unexpected(SiteError::Transport);
}

QCoro::Task<NetworkSiteClient::Response> NetworkSiteClient::load(QUrl url, qsizetype byteLimit,
                                                                 QDeadlineTimer deadline)
{
    const std::unique_ptr<QNetworkReply, DeleteLater> reply(m_network.get(request(url)));
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

QNetworkRequest NetworkSiteClient::request(const QUrl& url) const
{
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, u"CorvaniteInformation"_qs);
    request.setRawHeader("Accept-Language", "zh-CN");
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
    // Over HTTP/2 the read buffer's size holds nothing back.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setTransferTimeout(static_cast<int>(m_limits.silence.count()));
    return request;
}
