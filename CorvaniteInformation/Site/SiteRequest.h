// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QNetworkRequest>

#include <chrono>

/// The request for a document of the site, the same from every copy of the program: nothing in it
/// names the reader, the program's version or the machine.
/// @param silence after which it is given up
QNetworkRequest siteRequest(const QUrl& url, std::chrono::milliseconds silence);
