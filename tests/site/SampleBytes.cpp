// SPDX-License-Identifier: Apache-2.0

#include "SampleBytes.h"

#include <QtEndian>

namespace {

quint32 crc32(const QByteArray& bytes)
{
    quint32 crc = 0xffffffff;
    for (const char byte : bytes) {
        crc ^= static_cast<quint8>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1) ^ ((crc & 1) != 0 ? 0xedb88320 : 0);
        }
    }
    return ~crc;
}

QByteArray littleEndian(quint32 number)
{
    const quint32 ordered = qToLittleEndian(number);
    return QByteArray(reinterpret_cast<const char*>(&ordered), sizeof ordered);
}

} // namespace

QByteArray SampleBytes::noise(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    for (char& byte : bytes) {
        state = state * 1664525 + 1013904223;
        byte = static_cast<char>(' ' + (state >> 24) % 95);
    }
    return bytes;
}

QByteArray SampleBytes::gzipped(const QByteArray& bytes)
{
    constexpr qsizetype lengthAndHeader = 4 + 2;
    constexpr qsizetype checksum = 4;
    const QByteArray deflated = qCompress(bytes).sliced(lengthAndHeader).chopped(checksum);
    return QByteArray::fromHex("1f8b08000000000000ff") + deflated + littleEndian(crc32(bytes)) +
           littleEndian(static_cast<quint32>(bytes.size()));
}
