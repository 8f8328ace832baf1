// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationFollowUpdateMode.h"
#include "InformationIntakeFailure.h"

#include <QString>

/// The workbench's sentences that have rules in them.
namespace WorkbenchTexts {

/// How many public entries the curators' selection is said to rest on, fixed.
inline constexpr int checkedItemCount = 478;

QString todayLead(qsizetype visible, qsizetype focused, qsizetype hidden);

/// What the reader's earlier adjustments did; speaks of the lanes where any is turned down.
QString preferenceStatusText(qsizetype reducedLanes, qsizetype hidden);

/// Why a hand-in is not taken.
QString intakeMessage(InformationIntakeFailure failure);

/// That a signal was kept, and how it will be followed.
QString keepReceipt(InformationFollowUpdateMode updateMode);

/// How a kept signal will be followed.
QString followText(InformationFollowUpdateMode updateMode);

} // namespace WorkbenchTexts
