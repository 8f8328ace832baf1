#pragma once

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
