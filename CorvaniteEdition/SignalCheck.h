// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "EditionContext.h"
#include "Findings.h"
#include "InformationSignal.h"

/// The rules that hold of the signals of a pack or a retired list.
namespace SignalCheck {

/// @param place of the list, "$.signals"
void check(const QList<InformationSignal>& signalList, const QString& place,
           const EditionContext& context, Findings& findings);

} // namespace SignalCheck
