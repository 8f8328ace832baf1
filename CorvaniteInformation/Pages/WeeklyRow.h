#pragma once

#include "WeekDayRow.h"
#include "WeekRow.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One place of the weekly surface's column: the head of a week, or a slice of one of its days.
struct WeeklyRow
{
    Q_GADGET
    QML_VALUE_TYPE(weeklyRow)

    Q_PROPERTY(bool isDay MEMBER isDay CONSTANT FINAL)
    Q_PROPERTY(WeekRow week MEMBER week CONSTANT FINAL)
    Q_PROPERTY(WeekDayRow day MEMBER day CONSTANT FINAL)

public:
    bool isDay = false;
    /// Unless `isDay`.
    WeekRow week;
    /// With `isDay`.
    WeekDayRow day;

    const QString& key() const { return isDay ? day.date : week.weekId; }

    friend bool operator==(const WeeklyRow&, const WeeklyRow&) = default;
};
