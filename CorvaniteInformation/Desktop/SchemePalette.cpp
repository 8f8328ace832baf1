// SPDX-License-Identifier: Apache-2.0

#include "SchemePalette.h"

namespace {

struct SchemeColors
{
    QColor canvas;
    QColor card;
    QColor ink;
    QColor placeholder;
    QColor selection;
};

QPalette paletteOf(const SchemeColors& colors)
{
    QPalette palette;
    palette.setColor(QPalette::Window, colors.canvas);
    palette.setColor(QPalette::Button, colors.canvas);
    palette.setColor(QPalette::Base, colors.card);
    palette.setColor(QPalette::WindowText, colors.ink);
    palette.setColor(QPalette::ButtonText, colors.ink);
    palette.setColor(QPalette::Text, colors.ink);
    palette.setColor(QPalette::PlaceholderText, colors.placeholder);
    palette.setColor(QPalette::Highlight, colors.selection);
    palette.setColor(QPalette::HighlightedText, colors.ink);
    return palette;
}

} // namespace

QPalette schemePalette(AppearancePortal::ColorScheme colorScheme)
{
    switch (colorScheme) {
    case AppearancePortal::ColorScheme::Dark:
        return paletteOf({.canvas = 0x323232,
                          .card = 0x242424,
                          .ink = 0xEFECE8,
                          .placeholder = 0xAFAAA4,
                          .selection = 0x42292B});
    case AppearancePortal::ColorScheme::Light:
        return paletteOf({.canvas = 0xEFEFEF,
                          .card = 0xFFFFFF,
                          .ink = 0x1F1C1A,
                          .placeholder = 0x67625D,
                          .selection = 0xEADCDD});
    case AppearancePortal::ColorScheme::NoPreference:
        break;
    }
    return {};
}
