// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "InformationSourceEntry.h"
#include "SelectionDay.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

/// The edition compiled into the program: what is shown with no network and no data directory.
/// Decoded on first use from the embedded files in seed/, which the build has checked.
namespace InformationSeed {

const QString& schemaVersion();
/// The name of the curators' selection policy that produced the edition.
const QString& selectionPolicyVersion();
const QString& asOf();
qint64 checkedEntryCount();
const QList<InformationSignal>& signals();
/// Oldest first.
const QList<SelectionDay>& selectionHistory();
const QList<InformationSignal>& retiredSignals();
/// In display order.
const QList<InformationSourceEntry>& registrySources();

/// Decodes {"sources": [{"id", "name", "kind", "take", "url"}]}, every key required; nothing when
/// the document does not decode.
std::optional<QList<InformationSourceEntry>> parseRegistry(const QByteArray& document);

} // namespace InformationSeed
