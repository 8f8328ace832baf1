// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "WeeklyDigest.h"

#include <QHash>
#include <QString>

/// The texts of a week of the weekly digest.
namespace WeeklyDigestLabels {

/// "8月27日 星期四" for a YYYY-MM-DD day; any other text comes back unchanged.
QString dayLabel(const QString& day);

/// "8月27日" for a day of three numbers joined by "-"; any other text comes back unchanged.
QString shortRange(const QString& day);

/// "8月24日–8月30日".
QString range(const QString& monday, const QString& sunday);

/// @param isRunning whether the week is the present one at UTC+8
QString badge(bool isRunning);

/// How many days, featured signals and lanes the week has. A lane counts when a featured signal
/// that is still there belongs to it.
/// @param index the signals that are still there, by id
QString summary(const WeeklyDigest::Week& week, const QHash<QString, InformationSignal>& index);

} // namespace WeeklyDigestLabels
