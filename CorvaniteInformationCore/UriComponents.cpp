// SPDX-License-Identifier: Apache-2.0

#include "UriComponents.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

bool isLetter(QChar character)
{
    return (character >= u'a' && character <= u'z') || (character >= u'A' && character <= u'Z');
}

bool isScheme(QStringView text)
{
    return !text.isEmpty() && isLetter(text.front()) &&
           std::ranges::all_of(text, [](QChar character) {
               return isLetter(character) || (character >= u'0' && character <= u'9') ||
                      character == u'+' || character == u'-' || character == u'.';
           });
}

// Takes the delimiter and what follows it off the text and gives what followed it.
std::optional<QString> cutTail(QStringView& text, QChar delimiter)
{
    const qsizetype position = text.indexOf(delimiter);
    if (position < 0) {
        return std::nullopt;
    }
    const QString tail = text.sliced(position + 1).toString();
    text.truncate(position);
    return tail;
}

} // namespace

UriComponents UriComponents::of(const QString& text)
{
    UriComponents components;
    QStringView rest = text;
    components.fragment = cutTail(rest, u'#');
    components.query = cutTail(rest, u'?');

    const qsizetype colon = rest.indexOf(u':');
    if (colon > 0 && isScheme(rest.first(colon))) {
        components.scheme = rest.first(colon).toString();
        rest = rest.sliced(colon + 1);
    }

    if (rest.startsWith(u"//")) {
        rest = rest.sliced(2);
        const qsizetype slash = rest.indexOf(u'/');
        const QStringView authority = slash < 0 ? rest : rest.first(slash);
        components.authority = authority.toString();
        rest = rest.sliced(authority.size());
    }

    components.path = rest.toString();
    return components;
}

std::optional<UriComponents::Authority> UriComponents::authorityParts() const
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        u"(?:([^@]*)@)?(\\[[^][@]*\\]|[^][:@]*)(?::([0-9]*))?"));
    const auto match = authority ? pattern.match(*authority) : QRegularExpressionMatch();
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const auto group = [&match](int number) {
        return match.hasCaptured(number) ? std::optional(match.captured(number)) : std::nullopt;
    };
    return Authority{group(1), match.captured(2), group(3)};
}
