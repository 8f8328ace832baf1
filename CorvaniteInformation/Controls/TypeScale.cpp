// SPDX-License-Identifier: Apache-2.0

#include "TypeScale.h"

#include <QFontDatabase>

#include <algorithm>
#include <cstdlib>

namespace {

/// Of the weights of a family that are installed the one that is closest. Asked for itself, a
/// weight that is not installed gets the same letters, but looked up and loaded once more.
int installedWeight(const QString& family, int weight)
{
    const auto styles = QFontDatabase::styles(family);
    const auto distance = [&family, weight](const QString& style) {
        return std::abs(QFontDatabase::weight(family, style) - weight);
    };
    const auto closest = std::ranges::min_element(styles, {}, distance);
    return closest == styles.cend() ? weight : QFontDatabase::weight(family, *closest);
}

QFont fontOf(const QString& family, int pixelSize, int weight)
{
    QFont font;
    font.setFamily(family);
    font.setPixelSize(pixelSize);
    font.setWeight(QFont::Weight(installedWeight(family, weight)));
    return font;
}

} // namespace

QList<QFont> TypeScale::fonts() const
{
    QList<QFont> fonts;
    for (const auto* const style : findChildren<TextStyle*>()) {
        fonts.append(style->font());
    }
    return fonts;
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
