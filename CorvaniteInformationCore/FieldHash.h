// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QHashFunctions>

#include <optional>
#include <type_traits>
#include <utility>

/// Hashing of records field by field, for what qHash of Qt 6.4 does not take.
namespace FieldHash {

template <typename Field>
decltype(auto) hashable(const Field& field)
{
    if constexpr (std::is_enum_v<Field>) {
        return static_cast<std::underlying_type_t<Field>>(field);
    } else {
        return (field);
    }
}

/// Absent and empty hash differently, as they compare.
template <typename Field>
auto hashable(const std::optional<Field>& field)
{
    return std::pair(field.has_value(), field.value_or(Field()));
}

template <typename... Fields>
size_t hash(size_t seed, const Fields&... fields) noexcept
{
    return qHashMulti(seed, hashable(fields)...);
}

} // namespace FieldHash
