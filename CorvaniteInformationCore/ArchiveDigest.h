// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "SelectionDay.h"

#include <QHash>
#include <QList>

/// The archive: days newest first and what was featured on each.
namespace ArchiveDigest {

/// By date text, descending; equal dates keep their order.
QList<SelectionDay> daysNewestFirst(QList<SelectionDay> days);

/// The day's featured signals in stored order; ids without a signal are skipped.
/// @param signals unique by id
QList<InformationSignal> focusSignals(const SelectionDay& day,
                                      const QList<InformationSignal>& signals);
QList<InformationSignal> focusSignals(const SelectionDay& day,
                                      const QHash<QString, InformationSignal>& index);

} // namespace ArchiveDigest
