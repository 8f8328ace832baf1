// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DayEntryRow.h"
#include "InformationSignal.h"
#include "SelectionDay.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A slice of one day in the archive's index.
struct ArchiveDayRow
{
    Q_GADGET
    QML_VALUE_TYPE(archiveDayRow)

    Q_PROPERTY(QString date MEMBER date CONSTANT FINAL)
    Q_PROPERTY(QString monthDay MEMBER monthDay CONSTANT FINAL)
    Q_PROPERTY(QString weekday MEMBER weekday CONSTANT FINAL)
    Q_PROPERTY(bool isToday MEMBER isToday CONSTANT FINAL)
    Q_PROPERTY(QList<DayEntryRow> entries MEMBER entries CONSTANT FINAL)
    Q_PROPERTY(QString closing MEMBER closing CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(bool opensDay MEMBER opensDay CONSTANT FINAL)
    Q_PROPERTY(bool closesDay MEMBER closesDay CONSTANT FINAL)

public:
    /// @param focusSignals the day's featured signals as far as they are still there
    /// @param packDay the day of the pack that is shown
    static QList<ArchiveDayRow> slicesOf(const SelectionDay& day,
                                         const QList<InformationSignal>& focusSignals,
                                         const QString& packDay);

    /// As in the selection history.
    QString date;
    QString monthDay;
    QString weekday;
    bool isToday = false;
    QList<DayEntryRow> entries;
    QString closing;
    /// For a screen reader.
    QString name;
    /// The first slice of its day.
    bool opensDay = false;
    /// The last slice of its day.
    bool closesDay = false;

    const QString& key() const { return date; }

    friend bool operator==(const ArchiveDayRow&, const ArchiveDayRow&) = default;
};
