// SPDX-License-Identifier: Apache-2.0

#include "InformationContent.h"

#include "InformationSeed.h"

#include <QSet>

#include <utility>

namespace {

QList<InformationSignal> withoutKnownIds(QList<InformationSignal> signals, QSet<QString>& knownIds)
{
    signals.removeIf([&knownIds](const InformationSignal& signal) {
        const auto countBefore = knownIds.size();
        knownIds.insert(signal.id);
        return knownIds.size() == countBefore;
    });
    return signals;
}

} // namespace

InformationContent::InformationContent(QList<InformationSignal> signals,
                                       QList<InformationSignal> retiredSignals,
                                       QList<SelectionDay> selectionDays, QString packAsOf)
    : m_retiredList(std::move(retiredSignals)),
      m_selectionDays(std::move(selectionDays)),
      m_packAsOf(std::move(packAsOf))
{
    QSet<QString> knownIds;
    m_signals = withoutKnownIds(std::move(signals), knownIds);
    m_retiredSignals = withoutKnownIds(m_retiredList, knownIds);
}

InformationContent InformationContent::seed()
{
    return {InformationSeed::signals(), InformationSeed::retiredSignals(),
            InformationSeed::selectionHistory(), InformationSeed::asOf()};
}

InformationContent InformationContent::atStart(const InformationFileManager& fileManager)
{
    const auto directory = InformationPackSync::liveDirectory(fileManager);
    if (!directory) {
        return seed();
    }
    const auto snapshot = InformationPackSync::loadSnapshot(*directory, fileManager);
    if (!snapshot) {
        return seed();
    }
    return seed().replacedBy(*snapshot,
                             InformationPackSync::loadRetiredSignals(*directory, fileManager));
}

InformationContent
InformationContent::replacedBy(const InformationPackSync::Snapshot& snapshot,
                               std::optional<QList<InformationSignal>> retiredSignals) const
{
    return {snapshot.signals, retiredSignals ? *std::move(retiredSignals) : m_retiredList,
            snapshot.selectionDays.isEmpty() ? m_selectionDays : snapshot.selectionDays,
            snapshot.asOf};
}
