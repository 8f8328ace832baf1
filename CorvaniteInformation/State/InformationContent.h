// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationFileManager.h"
#include "InformationPackSync.h"
#include "InformationSignal.h"
#include "SelectionDay.h"

#include <QList>
#include <QString>

#include <optional>

/// The public content that the program shows: one pack and the retired signals beside it. Signal
/// ids are unique across both lists.
class InformationContent
{
public:
    /// The first of repeated ids stays, and a retired signal whose id is live is left out as long
    /// as it is: nothing stored or downloaded may break the index.
    InformationContent(QList<InformationSignal> signals, QList<InformationSignal> retiredSignals,
                       QList<SelectionDay> selectionDays, QString packAsOf);

    /// The compiled-in edition.
    static InformationContent seed();

    /// The stored pack where it is valid and newer than the compiled-in edition, else that edition.
    static InformationContent atStart(const InformationFileManager& fileManager);

    /// This content after a newer pack has come.
    /// @param retiredSignals the new retired list, when one has come with it
    InformationContent replacedBy(const InformationPackSync::Snapshot& snapshot,
                                  std::optional<QList<InformationSignal>> retiredSignals) const;

    const QList<InformationSignal>& signals() const { return m_signals; }
    const QList<InformationSignal>& retiredSignals() const { return m_retiredSignals; }
    const QList<SelectionDay>& selectionDays() const { return m_selectionDays; }
    const QString& packAsOf() const { return m_packAsOf; }

    friend bool operator==(const InformationContent&, const InformationContent&) = default;

private:
    QList<InformationSignal> m_signals;
    /// Of which a later pack may bring back what this one leaves out.
    QList<InformationSignal> m_retiredList;
    QList<InformationSignal> m_retiredSignals;
    QList<SelectionDay> m_selectionDays;
    QString m_packAsOf;
};
