// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// What documents hold, on a terminal.
namespace TerminalText {

/// The text with every character that could steer the terminal, break the line or turn the reading
/// direction replaced by U+FFFD.
QString of(const QString& text);

} // namespace TerminalText
