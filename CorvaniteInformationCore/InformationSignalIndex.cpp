// SPDX-License-Identifier: Apache-2.0

#include "InformationSignalIndex.h"

QHash<QString, InformationSignal> indexById(const QList<InformationSignal>& signals)
{
    const auto pointers = pointersById(signals);
    QHash<QString, InformationSignal> index;
    index.reserve(signals.size());
    for (auto entry = pointers.cbegin(); entry != pointers.cend(); ++entry) {
        index.insert(entry.key(), **entry);
    }
    return index;
}

QHash<QString, const InformationSignal*> pointersById(const QList<InformationSignal>& signals)
{
    QHash<QString, const InformationSignal*> pointers;
    pointers.reserve(signals.size());
    for (const InformationSignal& signal : signals) {
        const InformationSignal*& pointer = pointers[signal.id];
        if (pointer) {
            qFatal("two signals have the id \"%s\"", qUtf8Printable(signal.id));
        }
        pointer = &signal;
    }
    return pointers;
}
