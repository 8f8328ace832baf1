// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// Which addresses of the public content may be opened in the browser: http and https ones with a
/// host, without user information, control characters and characters that turn the reading
/// direction. Any other text is shown as plain text, without a link.
namespace OpenableAddress {

std::optional<QUrl> url(const QString& text);

/// The text where it may be opened, else the empty text.
QString from(const QString& text);

} // namespace OpenableAddress
