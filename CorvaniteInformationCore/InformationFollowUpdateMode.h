// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Vocabulary.h"

/// How later changes of a followed target are learnt of.
enum class InformationFollowUpdateMode { VerifiedChange, SnapshotBaseline, EditorialWatch };

template <>
inline constexpr std::array<VocabularyEntry<InformationFollowUpdateMode>, 3>
    vocabulary<InformationFollowUpdateMode>{{
        {InformationFollowUpdateMode::VerifiedChange, QLatin1StringView("verified-change")},
        {InformationFollowUpdateMode::SnapshotBaseline, QLatin1StringView("snapshot-baseline")},
        {InformationFollowUpdateMode::EditorialWatch, QLatin1StringView("editorial-watch")},
    }};
