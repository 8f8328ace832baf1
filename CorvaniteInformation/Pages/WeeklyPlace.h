// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "WeekDayRow.h"
#include "WeekHeadRow.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One place of the weekly surface's column: the head of a week, or a slice of one of its days.
struct WeeklyPlace
{
    Q_GADGET
    QML_VALUE_TYPE(weeklyPlace)

    Q_PROPERTY(bool isDay MEMBER isDay CONSTANT FINAL)
    Q_PROPERTY(WeekHeadRow week MEMBER week CONSTANT FINAL)
    Q_PROPERTY(WeekDayRow day MEMBER day CONSTANT FINAL)

public:
    bool isDay = false;
    /// Unless `isDay`.
    WeekHeadRow week;
    /// With `isDay`.
    WeekDayRow day;

    const QString& key() const { return isDay ? day.date : week.weekId; }

    friend bool operator==(const WeeklyPlace&, const WeeklyPlace&) = default;
};
