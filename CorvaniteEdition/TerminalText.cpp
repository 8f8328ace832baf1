// SPDX-License-Identifier: Apache-2.0

#include "TerminalText.h"

#include <algorithm>

namespace {

bool isSteering(QChar character)
{
    return character.category() == QChar::Other_Control ||
           character.category() == QChar::Other_Format ||
           character.category() == QChar::Separator_Line ||
           character.category() == QChar::Separator_Paragraph;
}

} // namespace

QString TerminalText::of(const QString& text)
{
    QString plain = text;
    std::ranges::replace_if(plain, isSteering, QChar(QChar::ReplacementCharacter));
    return plain;
}
