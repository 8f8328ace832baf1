#include "LinkOpener.h"

#include "OpenableAddress.h"
#include "ProductSite.h"

#include <QDesktopServices>

void LinkOpener::open(const QString& address)
{
    if (const auto url = OpenableAddress::url(address)) {
        QDesktopServices::openUrl(*url);
    }
}

QString LinkOpener::sitePage(const QString& origin, const QString& path)
{
    const auto site = ProductSite::fromOrigin(origin);
    return site ? site->url(path).toString(QUrl::FullyEncoded) : QString();
}
