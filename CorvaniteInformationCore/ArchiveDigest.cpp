// SPDX-License-Identifier: Apache-2.0

#include "ArchiveDigest.h"

#include "CodePointOrder.h"
#include "InformationSignalIndex.h"

#include <algorithm>

QList<SelectionDay> ArchiveDigest::daysNewestFirst(QList<SelectionDay> days)
{
    std::ranges::stable_sort(days, [](const SelectionDay& left, const SelectionDay& right) {
        return codePointLess(right.date, left.date);
    });
    return days;
}

QList<InformationSignal> ArchiveDigest::focusSignals(const SelectionDay& day,
                                                     const QList<InformationSignal>& signals)
{
    return focusSignals(day, indexById(signals));
}

QList<InformationSignal> ArchiveDigest::focusSignals(const SelectionDay& day,
                                                     const QHash<QString, InformationSignal>& index)
{
    QList<InformationSignal> featured;
    for (const QString& id : day.focusSignalIds) {
        const auto signal = index.constFind(id);
        if (signal != index.constEnd()) {
            featured.append(*signal);
        }
    }
    return featured;
}
