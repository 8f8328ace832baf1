// SPDX-License-Identifier: Apache-2.0

#include "Slug.h"

#include <QCryptographicHash>

QString Slug::of(const QString& text)
{
    constexpr qsizetype longest = 60;
    QString slug;
    for (const QChar character : text.toLower()) {
        const bool isPlain =
            character.unicode() < 0x80 && (character.isLetter() || character.isDigit());
        if (isPlain) {
            slug += character;
        } else if (!slug.isEmpty() && !slug.endsWith(u'-')) {
            slug += u'-';
        }
    }
    slug.truncate(longest);
    while (slug.endsWith(u'-')) {
        slug.chop(1);
    }
    return slug;
}

QString Slug::digest(const QString& text)
{
    constexpr qsizetype digits = 8;
    const QByteArray hash = QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex().first(digits));
}
