// SPDX-License-Identifier: Apache-2.0

#include "LetterPictures.h"

#include <QImage>
#include <QRawFont>

void LetterPictures::drawAhead(const QFont& font, const QString& text)
{
    const auto drawn = QRawFont::fromFont(font);
    for (const auto letter : drawn.glyphIndexesForString(text)) {
        drawn.alphaMapForGlyph(letter, QRawFont::PixelAntialiasing);
    }
}
