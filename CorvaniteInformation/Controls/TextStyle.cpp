// SPDX-License-Identifier: Apache-2.0

#include "TextStyle.h"

#include <QFontMetricsF>

#include <algorithm>
#include <cmath>
#include <utility>

TextStyle::TextStyle(QFont font, int lineHeight, QObject* parent)
    : QObject(parent), m_font(std::move(font)), m_lineHeight(lineHeight)
{
}

int TextStyle::ownHeight() const
{
    return static_cast<int>(std::ceil(QFontMetricsF(m_font).height()));
}

int TextStyle::spaceAbove() const
{
    return static_cast<int>(std::floor((m_lineHeight - ownHeight()) / 2.0));
}

// Text puts the font's own line at the top of a fixed one and counts what stands out below.
int TextStyle::spaceBelow() const
{
    return std::min(0, m_lineHeight - ownHeight()) - spaceAbove();
}
