// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "InformationWorkspace.h"
#include "SelectionDay.h"

#include <QList>
#include <QString>

#include <optional>

/// The cards that lead the day, and those after them.
namespace TodayFocus {

/// The day at UTC+8 of a stamp in the form of the workspace; nothing for any other stamp, so that a
/// pack stamped in milliseconds shows the computed focus, which the remaining list completes.
std::optional<QString> packDay(const QString& packAsOf);

/// What the history features on the pack's day; where that is nothing, the computed focus.
/// @param signals of today's list, unique by id
/// @param seedHistory the compiled-in selection history
QList<InformationSignal> focused(const QList<InformationSignal>& signals,
                                 const InformationWorkspace& workspace, const QString& packAsOf,
                                 const QList<SelectionDay>& selectionDays,
                                 const QList<SelectionDay>& seedHistory);

/// The signals without the computed focus.
QList<InformationSignal> remaining(const QList<InformationSignal>& signals,
                                   const InformationWorkspace& workspace, const QString& packAsOf,
                                   const QList<SelectionDay>& seedHistory);

} // namespace TodayFocus
