// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QStringView>

/// The decorative mark of a signal: a stack of bands that depends on the signal's id alone.
namespace SignalStrata {

/// The side of the square that the bands are laid out in, in units.
inline constexpr double side = 48;

struct Spec
{
    /// 4 to 7.
    int bandCount;
    /// The emphasised band.
    int accentBand;
    /// The band that stands out of line.
    int breakBand;
    /// How far the break band stands out, in units, -3 to 4.
    int shift;
    /// 0.24 to 0.38.
    double baseOpacity;

    friend bool operator==(const Spec&, const Spec&) = default;
};

struct Band
{
    /// 0 for the bottom band.
    int index;
    /// In units; y grows downwards.
    double x;
    double y;
    double width;
    double height;
    double opacity;

    friend bool operator==(const Band&, const Band&) = default;
};

/// 32-bit FNV-1a of the text's UTF-8 bytes. http://www.isthe.com/chongo/tech/comp/fnv/
quint32 fnv1a(QStringView text);

Spec spec(QStringView id);

/// From the bottom band up.
QList<Band> bands(QStringView id);

double bandOpacity(int band, const Spec& spec);

} // namespace SignalStrata
