// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FieldHash.h"

#include <QString>

/// A row of the registry of collection sources.
struct InformationSourceEntry
{
    QString id;
    QString name;
    /// The type and language of the source, in Chinese.
    QString kind;
    /// The curators' one-line view of the source.
    QString take;
    /// The home page.
    QString url;

    friend bool operator==(const InformationSourceEntry&, const InformationSourceEntry&) = default;
};

inline size_t qHash(const InformationSourceEntry& entry, size_t seed = 0) noexcept
{
    return FieldHash::hash(seed, entry.id, entry.name, entry.kind, entry.take, entry.url);
}
