// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "SelectionDay.h"
#include "WeeklyDigest.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

/// What is worked out at the first read after the content or the workspace changed.
struct DerivedReads
{
    std::optional<QHash<QString, InformationSignal>> signalIndex;
    std::optional<QList<InformationSignal>> visibleSignals;
    std::optional<QList<SelectionDay>> archiveDays;
    std::optional<QList<WeeklyDigest::Week>> weeklyWeeks;
    std::optional<QSet<QString>> keptTargets;
    std::optional<QList<InformationSignal>> allKeptSignals;
    std::optional<QList<QString>> searchedTexts;

    /// The read, worked out where it is missing.
    template <typename T, typename WorkOut>
    static const T& get(std::optional<T>& read, const WorkOut& workOut)
    {
        if (!read) {
            read = workOut();
        }
        return *read;
    }
};
