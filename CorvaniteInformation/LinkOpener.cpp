#include "LinkOpener.h"

#include "OpenableAddress.h"

#include <QDesktopServices>

void LinkOpener::open(const QString& address)
{
    if (const auto url = OpenableAddress::url(address)) {
        QDesktopServices::openUrl(*url);
    }
}

QString LinkOpener::sitePage(const QString& origin, const QString& path)
{
    QStringView base = origin;
    while (base.endsWith(u'/')) {
        base.chop(1);
    }
    QStringView below = path;
    while (below.startsWith(u'/')) {
        below = below.sliced(1);
    }
    return u"%1/%2"_qs.arg(base, below);
}
