// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CodePointOrder.h"
#include "InformationSignal.h"
#include "SelectionDay.h"

#include <QList>
#include <QString>

/// What a pack holds.
struct InformationPackSnapshot
{
    QString schemaVersion;
    QString asOf;
    qint64 checkedEntryCount;
    QList<InformationSignal> signals;
    QList<SelectionDay> selectionDays;

    /// Whether `asOf` sorts strictly after `than`, code point by code point.
    bool isNewer(QStringView than) const { return codePointLess(than, asOf); }

    friend bool operator==(const InformationPackSnapshot&,
                           const InformationPackSnapshot&) = default;
};
