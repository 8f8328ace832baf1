// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QStringList>

/// The words of a Latin text with one space between them.
inline QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(u' ');
}
