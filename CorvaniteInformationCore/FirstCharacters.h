// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// The text's first characters as a reader counts them (grapheme clusters); all of a shorter text.
QString firstCharacters(const QString& text, qsizetype count);
