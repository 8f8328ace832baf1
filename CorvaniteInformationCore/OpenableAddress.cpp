// SPDX-License-Identifier: Apache-2.0

#include "OpenableAddress.h"

#include "Ipv6Literal.h"
#include "UriComponents.h"

#include <algorithm>

namespace {

// https://www.unicode.org/Public/UCD/latest/ucd/PropList.txt, Bidi_Control
bool turnsReadingDirection(QChar character)
{
    const char16_t value = character.unicode();
    return value == 0x061C || value == 0x200E || value == 0x200F ||
           (value >= 0x202A && value <= 0x202E) || (value >= 0x2066 && value <= 0x2069);
}

bool hasDeceptiveCharacter(const QString& text)
{
    return std::ranges::any_of(text, [](QChar character) {
        return character.category() == QChar::Other_Control || turnsReadingDirection(character);
    });
}

bool isWebScheme(const QString& scheme)
{
    return scheme.compare(QLatin1StringView("https"), Qt::CaseInsensitive) == 0 ||
           scheme.compare(QLatin1StringView("http"), Qt::CaseInsensitive) == 0;
}

// Of anything else in brackets than an address Qt may make another host when it escapes it.
bool isHost(const QString& text)
{
    return text.startsWith(u'[') ? ipv6LiteralAddress(text).has_value() : !text.isEmpty();
}

} // namespace

std::optional<QUrl> OpenableAddress::url(const QString& text)
{
    const UriComponents components = UriComponents::of(text);
    const auto authority = components.authorityParts();
    if (!components.scheme || !isWebScheme(*components.scheme) || !authority ||
        !isHost(authority->host) || authority->userInfo || hasDeceptiveCharacter(text)) {
        return std::nullopt;
    }
    const QUrl url(text);
    return url.isValid() ? std::optional(url) : std::nullopt;
}

QString OpenableAddress::from(const QString& text)
{
    return url(text) ? text : QString();
}
