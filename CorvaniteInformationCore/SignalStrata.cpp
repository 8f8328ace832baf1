// SPDX-License-Identifier: Apache-2.0

#include "SignalStrata.h"

#include <QByteArray>

#include <algorithm>
#include <cstdlib>

namespace {

constexpr double gap = 1.5;
constexpr double thinnestBand = 2;
constexpr double accentOpacity = 0.95;
constexpr double strongestPlainOpacity = 0.62;

// The accent band stays in line: shifted as well it would stand out twice.
int effectiveShift(const SignalStrata::Spec& spec)
{
    return spec.accentBand == spec.breakBand ? 0 : spec.shift;
}

} // namespace

quint32 SignalStrata::fnv1a(QStringView text)
{
    constexpr quint32 offsetBasis = 2'166'136'261;
    constexpr quint32 prime = 16'777'619;
    quint32 hash = offsetBasis;
    for (const char byte : text.toUtf8()) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * prime;
    }
    return hash;
}

SignalStrata::Spec SignalStrata::spec(QStringView id)
{
    const quint32 hash = fnv1a(id);
    const quint32 bandCount = (hash & 3) | 4;
    return {
        .bandCount = static_cast<int>(bandCount),
        .accentBand = static_cast<int>((hash >> 2) % bandCount),
        .breakBand = static_cast<int>((hash >> 5) % bandCount),
        .shift = static_cast<int>((hash >> 8) & 7) - 3,
        .baseOpacity = ((hash >> 11) & 7) * 0.02 + 0.24,
    };
}

QList<SignalStrata::Band> SignalStrata::bands(QStringView id)
{
    const Spec pattern = spec(id);
    const double step = side / pattern.bandCount;
    QList<Band> stack;
    stack.reserve(pattern.bandCount);
    for (int index = 0; index < pattern.bandCount; ++index) {
        const int shift = index == pattern.breakBand ? effectiveShift(pattern) : 0;
        stack.append({
            .index = index,
            .x = std::max<double>(shift, 0),
            .y = side - step * (index + 1),
            .width = side - std::abs(shift),
            .height = std::max(step - gap, thinnestBand),
            .opacity = bandOpacity(index, pattern),
        });
    }
    return stack;
}

double SignalStrata::bandOpacity(int band, const Spec& spec)
{
    if (band == spec.accentBand) {
        return accentOpacity;
    }
    return std::min(strongestPlainOpacity, spec.baseOpacity + (band + spec.accentBand) % 3 * 0.1);
}
