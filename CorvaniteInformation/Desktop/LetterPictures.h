// SPDX-License-Identifier: Apache-2.0

#pragma once

class QFont;
class QString;

/// What letters look like in the pixels of a screen.
namespace LetterPictures {

/// Draws each letter of the text once for as long as the font is in use, so that to show the text
/// later takes no outline apart. Only for whole pixels, and on this thread. Needs the application
/// object.
void drawAhead(const QFont& font, const QString& text);

} // namespace LetterPictures
