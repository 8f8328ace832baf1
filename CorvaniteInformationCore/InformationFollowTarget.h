// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FieldHash.h"
#include "InformationFollowUpdateMode.h"

#include <QString>

#include <optional>

/// What the reader follows when keeping a card.
struct InformationFollowTarget
{
    QString id;
    QString label;
    /// What is being watched, in free text.
    QString scope;
    QString url;
    InformationFollowUpdateMode updateMode;
    /// Where the target was discovered, when recorded.
    std::optional<QString> discoveryRef;

    friend bool operator==(const InformationFollowTarget&,
                           const InformationFollowTarget&) = default;
};

inline size_t qHash(const InformationFollowTarget& target, size_t seed = 0) noexcept
{
    return FieldHash::hash(seed, target.id, target.label, target.scope, target.url,
                           target.updateMode, target.discoveryRef);
}
