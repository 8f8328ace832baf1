// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FieldHash.h"

#include <QString>

/// A further link of a card.
struct InformationRelatedSource
{
    QString label;
    QString url;

    friend bool operator==(const InformationRelatedSource&,
                           const InformationRelatedSource&) = default;
};

inline size_t qHash(const InformationRelatedSource& source, size_t seed = 0) noexcept
{
    return FieldHash::hash(seed, source.label, source.url);
}
