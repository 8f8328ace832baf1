// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Vocabulary.h"

/// Whether a card shows a new item or an update of an earlier one.
enum class InformationSignalKind { New, Update };

template <>
inline constexpr std::array<VocabularyEntry<InformationSignalKind>, 2>
    vocabulary<InformationSignalKind>{{
        {InformationSignalKind::New, QLatin1StringView("new")},
        {InformationSignalKind::Update, QLatin1StringView("update")},
    }};
