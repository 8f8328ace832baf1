#include "UriAuthority.h"

#include <QRegularExpression>

std::optional<UriAuthority> UriAuthority::of(const QString& text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        u"(?:([^@]*)@)?(\\[[^][@]*\\]|[^][:@]*)(?::([0-9]*))?"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const auto group = [&match](int number) {
        return match.hasCaptured(number) ? std::optional(match.captured(number)) : std::nullopt;
    };
    return UriAuthority{group(1), match.captured(2), group(3)};
}
