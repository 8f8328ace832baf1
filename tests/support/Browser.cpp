// SPDX-License-Identifier: Apache-2.0

#include "Browser.h"

#include <QDesktopServices>

Browser::Browser(const QStringList& otherSchemes)
    : m_schemes(QStringList{u"https"_qs, u"http"_qs} + otherSchemes)
{
    for (const auto& scheme : m_schemes) {
        QDesktopServices::setUrlHandler(scheme, this, "take");
    }
}

Browser::~Browser()
{
    for (const auto& scheme : m_schemes) {
        QDesktopServices::unsetUrlHandler(scheme);
    }
}

void Browser::take(const QUrl& url)
{
    opened.append(url);
}
