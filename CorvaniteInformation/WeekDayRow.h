#pragma once

#include "SelectionDay.h"
#include "WeekEntryRow.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One day of the weekly digest.
struct WeekDayRow
{
    Q_GADGET
    QML_VALUE_TYPE(weekDayRow)

    Q_PROPERTY(QString date MEMBER date CONSTANT FINAL)
    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)
    Q_PROPERTY(QString count MEMBER count CONSTANT FINAL)
    Q_PROPERTY(QList<WeekEntryRow> entries MEMBER entries CONSTANT FINAL)
    Q_PROPERTY(QString linkName MEMBER linkName CONSTANT FINAL)

public:
    /// @param index the signals that are still there, by id
    static WeekDayRow from(const SelectionDay& day, const QHash<QString, InformationSignal>& index);

    /// As in the selection history.
    QString date;
    QString label;
    QString count;
    QList<WeekEntryRow> entries;
    /// The link to the whole day, for a screen reader.
    QString linkName;

    friend bool operator==(const WeekDayRow&, const WeekDayRow&) = default;
};
