// SPDX-License-Identifier: Apache-2.0

#include "EditionContext.h"

#include "InformationPackCoding.h"
#include "InformationPackSync.h"
#include "InformationProjection.h"

namespace {

void addSignals(QHash<QString, InformationSignal>& known,
                const QList<InformationSignal>& signalList)
{
    for (const auto& signal : signalList) {
        if (!known.contains(signal.id)) {
            known.insert(signal.id, signal);
        }
    }
}

} // namespace

EditionContext EditionContext::of(const QList<EditionDocument>& documents)
{
    EditionContext context;
    QList<QString> packTimes;
    for (const auto& document : documents) {
        if (document.kind == DocumentKind::Pack) {
            if (const auto pack = InformationPackSync::parse(document.bytes)) {
                packTimes.append(pack->asOf);
                addSignals(context.packSignals, pack->signals);
            }
        } else if (document.kind == DocumentKind::RetiredList) {
            if (const auto retired = InformationPackCoding::decodeRetired(document.bytes)) {
                context.hasRetiredList = true;
                addSignals(context.retiredSignals, *retired);
            }
        }
    }
    if (packTimes.size() == 1 && InformationProjection::fastISOSeconds(packTimes.front())) {
        context.asOf = packTimes.front();
    }
    return context;
}
