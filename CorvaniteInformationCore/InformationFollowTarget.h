#pragma once

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
