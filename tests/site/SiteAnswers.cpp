// SPDX-License-Identifier: Apache-2.0

#include "SiteAnswers.h"

namespace SiteAnswers {

std::unique_ptr<NetworkSiteClient> clientOf(const LoopbackSite& site,
                                            NetworkSiteClient::Limits limits)
{
    return std::make_unique<NetworkSiteClient>(ProductSite::fromOrigin(site.origin()).value(),
                                               limits);
}

SiteClient::Answer answerOf(const LoopbackSite& site, NetworkSiteClient::Limits limits)
{
    return QCoro::waitFor(clientOf(site, limits)->get(u"/document"_qs, byteLimit));
}

QCoro::Task<> keepAnswer(QCoro::Task<SiteClient::Answer> request,
                         std::optional<SiteClient::Answer>& kept)
{
    kept = co_await request;
}

} // namespace SiteAnswers

template <>
char* QTest::toString(const SiteClient::Answer& answer)
{
    if (!answer) {
        return qstrdup(answer.error() == SiteError::TooLarge ? "too large" : "transport error");
    }
    return qstrdup(qPrintable(u"status %1, %2 bytes: %3"_qs.arg(answer->status.value_or(0))
                                  .arg(answer->body.size())
                                  .arg(QString::fromLatin1(answer->body.left(100)))));
}
