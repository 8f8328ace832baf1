// SPDX-License-Identifier: Apache-2.0

#include "TypeScale.h"

#include <QFontMetricsF>

namespace {

QFont fontOf(const QString& family, int pixelSize, QFont::Weight weight)
{
    QFont font;
    font.setFamily(family);
    font.setPixelSize(pixelSize);
    font.setWeight(weight);
    return font;
}

} // namespace

void TypeScale::lookUpFonts() const
{
    for (const auto* const style : findChildren<TextStyle*>()) {
        QFontMetricsF(style->font()).horizontalAdvance(u"信A"_qs);
    }
}

TextStyle* TypeScale::title(int pixelSize, int lineHeight)
{
    return new TextStyle(fontOf(m_families.serif(), pixelSize, QFont::Bold), lineHeight, this);
}

TextStyle* TypeScale::text(int pixelSize, QFont::Weight weight, int lineHeight,
                           double letterSpacing)
{
    QFont font = fontOf(m_families.sans(), pixelSize, weight);
    if (letterSpacing != 0) {
        font.setLetterSpacing(QFont::AbsoluteSpacing, letterSpacing);
    }
    return new TextStyle(font, lineHeight, this);
}
