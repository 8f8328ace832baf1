// SPDX-License-Identifier: Apache-2.0

#include "Ipv6Literal.h"

#include <QRegularExpression>

#include <arpa/inet.h>

std::optional<std::array<quint8, 16>> ipv6LiteralAddress(QStringView host)
{
    static const QRegularExpression literal(
        QRegularExpression::anchoredPattern(u"\\[([0-9A-Fa-f:.]+)(?:%25[A-Za-z0-9._~-]+)?\\]"));
    const QRegularExpressionMatch match = literal.match(host);
    std::array<quint8, 16> address;
    if (!match.hasMatch() ||
        inet_pton(AF_INET6, match.captured(1).toLatin1().constData(), address.data()) != 1) {
        return std::nullopt;
    }
    return address;
}
