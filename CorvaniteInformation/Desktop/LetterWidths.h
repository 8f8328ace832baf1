// SPDX-License-Identifier: Apache-2.0

#pragma once

class QFont;

/// How wide letters are. Qt 6.4 takes the outline of each letter apart to know its width, and does
/// so again to draw it.
namespace LetterWidths {

/// Looks the font up, which takes Fontconfig half a millisecond, and from now on has the widths of
/// its letters read from the table that a font file has of them, on this thread. They are the same
/// widths. A font without such a table, or whose letters Qt widens or fits to whole pixels, stays
/// as it is. Needs the application object.
void readFromTable(const QFont& font);

} // namespace LetterWidths
