// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>
#include <QStringList>

/// Text from outside as a document or a terminal may show it: a control character that would steer
/// one becomes U+FFFD, and so does half of a surrogate pair.
namespace PrintableText {

/// With its line ends, however written, as blanks.
QString oneLine(const QString& text);

/// Its lines, without empty ones at the end.
QStringList lines(const QString& text);

} // namespace PrintableText
