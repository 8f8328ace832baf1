#pragma once

#include "InformationEvidenceClass.h"
#include "InformationIngestionMode.h"
#include "InformationSupportingEvidence.h"

#include <QList>
#include <QString>

#include <optional>

/// How an item entered the pack and what evidence backs it.
struct InformationIngestion
{
    InformationIngestionMode mode;
    /// The name of the collection channel.
    QString adapter;
    InformationEvidenceClass evidenceClass;
    /// References into the curators' records, of the form path "#" key.
    std::optional<QString> observationRef;
    std::optional<QString> changeRef;
    QList<InformationSupportingEvidence> supportingEvidence;

    friend bool operator==(const InformationIngestion&, const InformationIngestion&) = default;
};
