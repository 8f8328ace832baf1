// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationFollowTarget.h"
#include "InformationIngestion.h"
#include "InformationLane.h"
#include "InformationRelatedSource.h"
#include "InformationSignalKind.h"
#include "InformationTimelineEvent.h"
#include "OriginalReachability.h"

#include <QHash>
#include <QList>
#include <QString>

#include <optional>

/// One card of curated public information. Never changed once built: what the reader does with it
/// is kept in the workspace.
struct InformationSignal
{
    /// Unique within a pack.
    QString id;
    InformationSignalKind kind;
    InformationLane lane;
    /// ISO 8601 time of publication at the source, when known.
    std::optional<QString> publishedAt;
    /// ISO 8601 time at which the curators observed and verified the item.
    QString observedAt;
    QString originalURL;
    QList<InformationRelatedSource> relatedSources;
    /// Where the item comes from, for people.
    QString source;
    QString title;
    QString summary;
    /// What changed, for an update.
    std::optional<QString> updateSummary;
    std::optional<QString> digest;
    /// Why it is worth attention.
    QString why;
    /// The limit or risk to keep in mind.
    QString caveat;
    QList<InformationTimelineEvent> timeline;
    InformationFollowTarget followTarget;
    InformationIngestion ingestion;

    /// By the host of `originalURL`; open when it names none.
    OriginalReachability originalReachability() const;

    /// For a blocked original, the first related source on a host that is worth trying instead.
    std::optional<InformationRelatedSource> reachableAlternate() const;

    /// How long ago the item was verified, for the first two days.
    /// @param now seconds since 1970-01-01T00:00:00Z
    std::optional<QString> relativeObservedLabel(double now) const;

    friend bool operator==(const InformationSignal&, const InformationSignal&) = default;
};

/// Hashes every field, as equality compares every field.
size_t qHash(const InformationSignal& signal, size_t seed = 0) noexcept;
