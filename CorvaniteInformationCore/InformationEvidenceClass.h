// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "Vocabulary.h"

/// What kind of evidence backs a card.
enum class InformationEvidenceClass {
    AttentionSignal,
    OfficialStatement,
    OfficialRepository,
    TeamReport,
    InstitutionalThesis,
    FounderSelfReport,
    DiscussionSignal,
    CreatorSelfReport
};

template <>
inline constexpr std::array<VocabularyEntry<InformationEvidenceClass>, 8>
    vocabulary<InformationEvidenceClass>{{
        {InformationEvidenceClass::AttentionSignal, QLatin1StringView("attention-signal")},
        {InformationEvidenceClass::OfficialStatement, QLatin1StringView("official-statement")},
        {InformationEvidenceClass::OfficialRepository, QLatin1StringView("official-repository")},
        {InformationEvidenceClass::TeamReport, QLatin1StringView("team-report")},
        {InformationEvidenceClass::InstitutionalThesis, QLatin1StringView("institutional-thesis")},
        {InformationEvidenceClass::FounderSelfReport, QLatin1StringView("founder-self-report")},
        {InformationEvidenceClass::DiscussionSignal, QLatin1StringView("discussion-signal")},
        {InformationEvidenceClass::CreatorSelfReport, QLatin1StringView("creator-self-report")},
    }};
