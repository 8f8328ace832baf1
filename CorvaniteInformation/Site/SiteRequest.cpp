// SPDX-License-Identifier: Apache-2.0

#include "SiteRequest.h"

QNetworkRequest siteRequest(const QUrl& url, std::chrono::milliseconds silence)
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
    request.setTransferTimeout(static_cast<int>(silence.count()));
    return request;
}
