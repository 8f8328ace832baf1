// SPDX-License-Identifier: Apache-2.0

#pragma once

/// The language whose forms a text gets where a font has several for one character.
namespace TextLanguage {

/// From now on that of all text is simplified Chinese, and no longer that of the locale; what was
/// laid out already stays.
void setChinese();

} // namespace TextLanguage
