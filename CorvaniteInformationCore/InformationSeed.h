#pragma once

#include "InformationSignal.h"
#include "InformationSourceEntry.h"
#include "SelectionDay.h"

#include <QList>
#include <QString>

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

} // namespace InformationSeed
