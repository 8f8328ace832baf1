// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Findings.h"

#include <QString>

#include <optional>

/// Rules that hold of single values, wherever they stand. Each tells what is wrong, if anything.
namespace TextRules {

/// Whether there is a Chinese character in it.
bool hasChinese(const QString& text);

/// A text that the reader sees has something in it.
void requireText(const QString& text, const QString& place, Findings& findings);

/// The same of a sentence, which moreover should be in Chinese.
void requireSentence(const QString& text, const QString& place, Findings& findings);

/// A sentence that need not be there, but is not empty where it is.
void checkSentence(const std::optional<QString>& text, const QString& place, Findings& findings);

/// An address that the program opens.
void requireAddress(const QString& address, const QString& place, Findings& findings);

/// A time in the one form of a pack; whether it is one.
bool requireTime(const QString& time, const QString& place, Findings& findings);

} // namespace TextRules
