// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

/// The text with every half of a surrogate pair that stands alone replaced by U+FFFD, as a file
/// would give it back.
QString wellFormedText(const QString& text);
