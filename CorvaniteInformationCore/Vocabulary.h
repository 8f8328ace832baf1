// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QLatin1StringView>

#include <array>
#include <optional>

/// One case of a closed vocabulary and the token that stands for it in serialised form.
template <typename Enum>
struct VocabularyEntry
{
    Enum value;
    QLatin1StringView token;
};

/// The table of a closed vocabulary: every case once, in declaration order. Each vocabulary
/// specialises it beside its enumeration.
template <typename Enum>
inline constexpr std::array<VocabularyEntry<Enum>, 0> vocabulary{};

/// The serialised token of a case.
template <typename Enum>
constexpr QLatin1StringView rawValue(Enum value)
{
    for (const auto& entry : vocabulary<Enum>) {
        if (entry.value == value) {
            return entry.token;
        }
    }
    return {};
}

/// The case that the token stands for, compared exactly; nothing for an unknown token.
template <typename Enum, typename Text>
constexpr std::optional<Enum> fromRawValue(const Text& token)
{
    for (const auto& entry : vocabulary<Enum>) {
        if (token == entry.token) {
            return entry.value;
        }
    }
    return std::nullopt;
}
