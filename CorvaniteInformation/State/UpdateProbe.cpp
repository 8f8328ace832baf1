// SPDX-License-Identifier: Apache-2.0

#include "UpdateProbe.h"

QCoro::Task<std::optional<InformationUpdateNotice>> UpdateProbe::run(SiteClient& site,
                                                                     QString runningVersion)
{
    constexpr qsizetype maximumBytes = 256 * 1024;
    const QString host = site.host();
    const auto answer = co_await site.get(SiteClient::appVersionPath, maximumBytes);
    if (!answer || !answer->isDocument()) {
        co_return std::nullopt;
    }
    const auto notice = InformationUpdateNotice::parse(answer->body, host);
    if (!notice || !InformationUpdateNotice::isNewer(notice->version, runningVersion)) {
        co_return std::nullopt;
    }
    co_return *notice;
}
