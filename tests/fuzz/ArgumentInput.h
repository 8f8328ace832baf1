// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FuzzTarget.h"

#include <QString>
#include <QStringList>

#include <algorithm>

/// What a program is called with: an argument a line, none for an empty input.
inline QStringList inputArguments(const std::uint8_t* data, std::size_t size)
{
    return size == 0 ? QStringList() : QString::fromUtf8(inputBytes(data, size)).split(u'\n');
}

/// Whether a terminal shows the text, of so many lines, as it stands.
inline bool isPlain(const QString& text, qsizetype lines)
{
    return text.count(u'\n') == lines && std::ranges::none_of(text, [](QChar character) {
               return character != u'\n' && character.category() == QChar::Other_Control;
           });
}
