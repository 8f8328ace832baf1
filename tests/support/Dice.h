// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <random>

/// Chance that comes again with its seed.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_random(seed) {}

    /// From 0 to one less than the sides.
    int roll(int sides) { return static_cast<int>(m_random() % static_cast<unsigned>(sides)); }

private:
    std::mt19937 m_random;
};
