// SPDX-License-Identifier: Apache-2.0

#include "PackedTexts.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace {

// In units: 16 KB, which a single text may hold on to.
constexpr qsizetype blockSize = 8192;
// Of longer ones there would be room for few.
constexpr size_t longestPacked = 1024;

// Of text, for these are looked at together.
constexpr qsizetype byteCount = sizeof(quint64);

bool beginsWithAscii(quint64 bytes)
{
    return (bytes & 0x80) == 0;
}

// Until the first that is none.
int asciiCount(quint64 bytes)
{
    return std::countr_zero(bytes & 0x8080808080808080) / 8;
}

// Two characters of three bytes each, as Chinese ones are.
bool beginsWithTwoOfThree(quint64 bytes)
{
    return (bytes & 0xF00000F0) == 0xE00000E0;
}

char16_t fromThreeBytes(quint64 bytes)
{
    return static_cast<char16_t>((bytes & 0x0F) << 12 | (bytes >> 2 & 0x0FC0) |
                                 (bytes >> 16 & 0x3F));
}

char32_t bitsOf(char byte, int mask)
{
    return static_cast<char32_t>(byte & mask);
}

// Moves on behind the character's bytes, and gives the end of its units.
char16_t* decodeCharacter(const char*& byte, char16_t* unit)
{
    const auto lead = static_cast<unsigned char>(*byte);
    if (lead < 0x80) {
        *unit++ = lead;
        byte += 1;
    } else if (lead < 0xE0) {
        *unit++ = static_cast<char16_t>(bitsOf(byte[0], 0x1F) << 6 | bitsOf(byte[1], 0x3F));
        byte += 2;
    } else if (lead < 0xF0) {
        *unit++ = static_cast<char16_t>(bitsOf(byte[0], 0x0F) << 12 | bitsOf(byte[1], 0x3F) << 6 |
                                        bitsOf(byte[2], 0x3F));
        byte += 3;
    } else {
        const char32_t character = bitsOf(byte[0], 0x07) << 18 | bitsOf(byte[1], 0x3F) << 12 |
                                   bitsOf(byte[2], 0x3F) << 6 | bitsOf(byte[3], 0x3F);
        *unit++ = QChar::highSurrogate(character);
        *unit++ = QChar::lowSurrogate(character);
        byte += 4;
    }
    return unit;
}

// Gives the end of the units. A text never has more units than bytes.
char16_t* decode(std::string_view utf8, char16_t* unit)
{
    const char* byte = utf8.data();
    const char* const end = byte + utf8.size();
    while (end - byte >= byteCount) {
        std::array<unsigned char, byteCount> next;
        std::memcpy(next.data(), byte, next.size());
        const auto bytes = qFromLittleEndian(std::bit_cast<quint64>(next));
        if (beginsWithAscii(bytes)) {
            std::copy(next.begin(), next.end(), unit);
            const int count = asciiCount(bytes);
            byte += count;
            unit += count;
        } else if (beginsWithTwoOfThree(bytes)) {
            *unit++ = fromThreeBytes(bytes);
            *unit++ = fromThreeBytes(bytes >> 24);
            byte += 6;
        } else {
            unit = decodeCharacter(byte, unit);
        }
    }
    while (byte != end) {
        unit = decodeCharacter(byte, unit);
    }
    return unit;
}

QString onItsOwn(std::string_view utf8)
{
    QString text(static_cast<qsizetype>(utf8.size()), Qt::Uninitialized);
    auto* const begin = reinterpret_cast<char16_t*>(text.data());
    text.resize(decode(utf8, begin) - begin);
    text.squeeze();
    return text;
}

} // namespace

QString PackedTexts::fromUtf8(std::string_view utf8)
{
    if (utf8.empty()) {
        return u""_qs;
    }
    if (utf8.size() > longestPacked) {
        return onItsOwn(utf8);
    }
    if (m_end - m_begin <= static_cast<qsizetype>(utf8.size())) {
        beginBlock();
    }
    char16_t* const begin = m_begin;
    char16_t* const end = decode(utf8, begin);
    *end = u'\0';
    m_begin = end + 1;
    // A text is free to begin anywhere in its memory, as it does after its beginning was removed.
    m_block->ref();
    return QString(QString::DataPointer(m_block.d_ptr(), begin, end - begin));
}

void PackedTexts::beginBlock()
{
    m_block = QString::DataPointer(QTypedArrayData<char16_t>::allocate(blockSize));
    m_begin = m_block.data();
    m_end = m_begin + blockSize;
}
