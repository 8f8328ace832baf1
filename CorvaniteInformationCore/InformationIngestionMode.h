// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Vocabulary.h"

/// How an item entered the pack.
enum class InformationIngestionMode { Editorial };

template <>
inline constexpr std::array<VocabularyEntry<InformationIngestionMode>, 1>
    vocabulary<InformationIngestionMode>{{
        {InformationIngestionMode::Editorial, QLatin1StringView("editorial")},
    }};
