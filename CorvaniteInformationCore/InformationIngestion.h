// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "FieldHash.h"
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

inline size_t qHash(const InformationIngestion& ingestion, size_t seed = 0) noexcept
{
    return FieldHash::hash(seed, ingestion.mode, ingestion.adapter, ingestion.evidenceClass,
                           ingestion.observationRef, ingestion.changeRef,
                           ingestion.supportingEvidence);
}
