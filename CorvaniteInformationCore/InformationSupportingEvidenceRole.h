// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Vocabulary.h"

/// What a supporting observation backs. The tokens are camel case; packs write the roles in kebab
/// case.
enum class InformationSupportingEvidenceRole { BusinessFact, ProductFact };

template <>
inline constexpr std::array<VocabularyEntry<InformationSupportingEvidenceRole>, 2>
    vocabulary<InformationSupportingEvidenceRole>{{
        {InformationSupportingEvidenceRole::BusinessFact, QLatin1StringView("businessFact")},
        {InformationSupportingEvidenceRole::ProductFact, QLatin1StringView("productFact")},
    }};
