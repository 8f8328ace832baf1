// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One featured entry of a day, in the archive's index and in the weekly digest.
struct DayEntryRow
{
    Q_GADGET
    QML_VALUE_TYPE(dayEntryRow)

    Q_PROPERTY(QString number MEMBER number CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(bool resolved MEMBER resolved CONSTANT FINAL)
    Q_PROPERTY(QColor laneColor MEMBER laneColor CONSTANT FINAL)
    Q_PROPERTY(QString laneName MEMBER laneName CONSTANT FINAL)

public:
    /// @param number the running number, from 1
    static DayEntryRow from(const InformationSignal& signal, qsizetype number);
    /// Of a signal that is no longer there.
    static DayEntryRow gone(const QString& signalId, qsizetype number);

    /// At least two digits.
    QString number;
    QString title;
    /// The signal is still there; only then has it a lane.
    bool resolved = false;
    QColor laneColor;
    QString laneName;

    friend bool operator==(const DayEntryRow&, const DayEntryRow&) = default;
};
