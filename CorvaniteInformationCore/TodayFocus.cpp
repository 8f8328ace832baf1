// SPDX-License-Identifier: Apache-2.0

#include "TodayFocus.h"

#include "ArchiveDigest.h"
#include "InformationProjection.h"
#include "StampText.h"

#include <algorithm>

namespace {

QList<InformationSignal> featuredOn(const std::optional<QString>& date,
                                    const QList<InformationSignal>& signals,
                                    const QList<SelectionDay>& selectionDays)
{
    const auto day = std::ranges::find(selectionDays, date, &SelectionDay::date);
    return day == selectionDays.end() ? QList<InformationSignal>()
                                      : ArchiveDigest::focusSignals(*day, signals);
}

} // namespace

std::optional<QString> TodayFocus::packDay(const QString& packAsOf)
{
    const auto time = StampText::read(packAsOf);
    return time ? std::optional(
                      InformationProjection::beijingDay(time->time_since_epoch().count() * 1000))
                : std::nullopt;
}

QList<InformationSignal> TodayFocus::focused(const QList<InformationSignal>& signals,
                                             const InformationWorkspace& workspace,
                                             const QString& packAsOf,
                                             const QList<SelectionDay>& selectionDays,
                                             const QList<SelectionDay>& seedHistory)
{
    const auto featured = featuredOn(packDay(packAsOf), signals, selectionDays);
    return featured.isEmpty()
               ? InformationProjection::focusedToday(signals, workspace,
                                                     InformationProjection::defaultFocusLimit,
                                                     packAsOf, seedHistory)
               : featured;
}

QList<InformationSignal> TodayFocus::remaining(const QList<InformationSignal>& signals,
                                               const InformationWorkspace& workspace,
                                               const QString& packAsOf,
                                               const QList<SelectionDay>& seedHistory)
{
    return InformationProjection::remainingToday(
        signals, workspace, InformationProjection::defaultFocusLimit, packAsOf, seedHistory);
}
