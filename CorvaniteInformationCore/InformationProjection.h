// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "InformationWorkspace.h"
#include "SelectionDay.h"

#include <QList>
#include <QString>

#include <optional>

/// From signals, workspace and time to what is shown. Orders are stable and texts compare by code
/// point.
namespace InformationProjection {

inline constexpr qsizetype defaultFocusLimit = 3;

/// The day's list: hidden signals left out, reduced lanes last.
QList<InformationSignal> today(const QList<InformationSignal>& signals,
                               const InformationWorkspace& workspace);

/// At most `limit` signals of today's list to look at first: news of the last day, then updates,
/// then older news that takes turns from day to day; those featured that day come last.
/// @param asOf the pack's as-of stamp
QList<InformationSignal> focusedToday(const QList<InformationSignal>& signals,
                                      const InformationWorkspace& workspace, qsizetype limit,
                                      const QString& asOf, const QList<SelectionDay>& history);

/// Today's list without its focus.
/// @param history the compiled-in selection history
QList<InformationSignal> remainingToday(const QList<InformationSignal>& signals,
                                        const InformationWorkspace& workspace, qsizetype limit,
                                        const QString& asOf, const QList<SelectionDay>& history);

/// One signal a kept or followed target, in its newest version, last kept first.
QList<InformationSignal> kept(const QList<InformationSignal>& signals,
                              const InformationWorkspace& workspace);

/// The newest signal of each followed target, in the order followed.
QList<InformationSignal> following(const QList<InformationSignal>& signals,
                                   const InformationWorkspace& workspace);

/// Names one version of a signal: its id, "@", its `observedAt`.
QString versionKey(const InformationSignal& signal);

/// Seconds since 1970-01-01T00:00:00Z of an ISO 8601 date-time; nothing when it does not read.
std::optional<double> parseISODate(QStringView text);

/// The same for the one form "YYYY-MM-DDThh:mm:ss[.f…]Z" only. A day past its month's end rolls
/// over. Days from civil dates: https://howardhinnant.github.io/date_algorithms.html
std::optional<double> fastISOSeconds(QStringView text);

/// `parseISODate` in whole milliseconds, cut toward zero.
std::optional<qint64> isoMilliseconds(QStringView text);

/// The calendar date at UTC+8 as YYYY-MM-DD.
/// @param milliseconds since 1970-01-01T00:00:00Z
QString beijingDay(qint64 milliseconds);

} // namespace InformationProjection
