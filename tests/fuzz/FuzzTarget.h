// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

/// What every target defines, under the name that libFuzzer calls: aborts for an input of which an
/// invariant does not hold. Gives 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

inline QByteArray inputBytes(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}
