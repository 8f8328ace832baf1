// SPDX-License-Identifier: Apache-2.0

#include "LinkOpener.h"

#include "OpenableAddress.h"

#include <QDesktopServices>

void LinkOpener::open(const QString& address)
{
    if (const auto url = OpenableAddress::url(address)) {
        QDesktopServices::openUrl(*url);
    }
}
