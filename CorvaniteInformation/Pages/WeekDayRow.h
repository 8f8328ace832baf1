// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "DayEntryRow.h"
#include "SelectionDay.h"
#include "WeeklyDigest.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A slice of one day of the weekly digest.
struct WeekDayRow
{
    Q_GADGET
    QML_VALUE_TYPE(weekDayRow)

    Q_PROPERTY(QString date MEMBER date CONSTANT FINAL)
    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)
    Q_PROPERTY(QString count MEMBER count CONSTANT FINAL)
    Q_PROPERTY(QList<DayEntryRow> entries MEMBER entries CONSTANT FINAL)
    Q_PROPERTY(QString linkName MEMBER linkName CONSTANT FINAL)
    Q_PROPERTY(bool opensDay MEMBER opensDay CONSTANT FINAL)
    Q_PROPERTY(bool closesDay MEMBER closesDay CONSTANT FINAL)
    Q_PROPERTY(bool opensWeek MEMBER opensWeek CONSTANT FINAL)
    Q_PROPERTY(bool closesWeek MEMBER closesWeek CONSTANT FINAL)

public:
    /// @param index the signals that are still there, by id
    static QList<WeekDayRow> slicesOf(const SelectionDay& day,
                                      const QHash<QString, InformationSignal>& index);
    /// The days of a week in their order.
    static QList<WeekDayRow> slicesOf(const WeeklyDigest::Week& week,
                                      const QHash<QString, InformationSignal>& index);

    /// As in the selection history.
    QString date;
    QString label;
    QString count;
    QList<DayEntryRow> entries;
    /// The link to the whole day, for a screen reader.
    QString linkName;
    /// The first slice of its day, which shows the date.
    bool opensDay = false;
    /// The last slice of its day, which leads to the whole day.
    bool closesDay = false;
    bool opensWeek = false;
    bool closesWeek = false;

    friend bool operator==(const WeekDayRow&, const WeekDayRow&) = default;
};
