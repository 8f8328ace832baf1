#include "InformationSignalIndex.h"

QHash<QString, InformationSignal> indexById(const QList<InformationSignal>& signals)
{
    QHash<QString, InformationSignal> index;
    index.reserve(signals.size());
    for (const InformationSignal& signal : signals) {
        if (index.contains(signal.id)) {
            qFatal("two signals have the id \"%s\"", qUtf8Printable(signal.id));
        }
        index.insert(signal.id, signal);
    }
    return index;
}
