// SPDX-License-Identifier: Apache-2.0

#pragma once

/// Whether a character has a numeric value: the digits and numbers of all scripts, and the
/// ideographs that mean a number. https://www.unicode.org/reports/tr44/#Numeric_Type
bool isNumericCharacter(char32_t character);
