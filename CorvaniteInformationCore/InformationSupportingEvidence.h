// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FieldHash.h"
#include "InformationSupportingEvidenceRole.h"

#include <QString>

/// One further observation that backs a card.
struct InformationSupportingEvidence
{
    InformationSupportingEvidenceRole role;
    /// References into the curators' records, of the form path "#" key.
    QString observationRef;
    QString changeRef;

    friend bool operator==(const InformationSupportingEvidence&,
                           const InformationSupportingEvidence&) = default;
};

inline size_t qHash(const InformationSupportingEvidence& evidence, size_t seed = 0) noexcept
{
    return FieldHash::hash(seed, evidence.role, evidence.observationRef, evidence.changeRef);
}
