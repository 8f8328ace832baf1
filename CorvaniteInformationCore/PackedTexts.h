// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QString>

#include <string_view>

/// Makes texts of UTF-8, and lays them side by side in blocks of memory, but for long ones: a
/// document has thousands, and memory for each would take longer than to decode it.
///
/// A text is a `QString` like any other, and may outlive its maker. With the last text of a block
/// its memory is free.
class PackedTexts
{
public:
    /// @param utf8 UTF-8 to the letter
    QString fromUtf8(std::string_view utf8);

private:
    void beginBlock();

    /// It stays here while there may be room.
    QString::DataPointer m_block;
    /// What is free of it.
    char16_t* m_begin = nullptr;
    char16_t* m_end = nullptr;
};
