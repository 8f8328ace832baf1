// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionContext.h"
#include "Findings.h"
#include "InformationSignal.h"
#include "SelectionDay.h"

/// The rules that hold of a pack's selection history.
namespace HistoryCheck {

/// @param place of the history, "$.selectionHistory"
void check(const QList<SelectionDay>& history, const QList<InformationSignal>& packSignals,
           const QString& place, const EditionContext& context, Findings& findings);

} // namespace HistoryCheck
