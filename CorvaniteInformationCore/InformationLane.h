// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Vocabulary.h"

#include <QString>

#include <array>

/// The content lane a card belongs to.
enum class InformationLane {
    OpenSourceGrowth,
    ProductRadar,
    Opportunity,
    Workflow,
    FounderStory,
    PlatformShift
};

template <>
inline constexpr std::array<VocabularyEntry<InformationLane>, 6> vocabulary<InformationLane>{{
    {InformationLane::OpenSourceGrowth, QLatin1StringView("openSourceGrowth")},
    {InformationLane::ProductRadar, QLatin1StringView("productRadar")},
    {InformationLane::Opportunity, QLatin1StringView("opportunity")},
    {InformationLane::Workflow, QLatin1StringView("workflow")},
    {InformationLane::FounderStory, QLatin1StringView("founderStory")},
    {InformationLane::PlatformShift, QLatin1StringView("platformShift")},
}};

/// An sRGB colour; each component from 0 to 1, opaque.
struct LaneAccent
{
    double red;
    double green;
    double blue;

    friend bool operator==(const LaneAccent&, const LaneAccent&) = default;
};

/// The lane's Chinese name, as shown on cards, chips and in receipts.
QString displayName(InformationLane lane);

/// The colour of the lane's strata mark and lane square.
LaneAccent accent(InformationLane lane);
