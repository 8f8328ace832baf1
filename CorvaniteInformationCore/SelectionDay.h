// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QList>
#include <QString>

/// One day of the selection history.
struct SelectionDay
{
    /// YYYY-MM-DD, a day at UTC+8.
    QString date;
    /// The ids of the signals featured that day, in display order.
    QList<QString> focusSignalIds;
    /// How many signals that day's list showed.
    qint64 totalShown;

    friend bool operator==(const SelectionDay&, const SelectionDay&) = default;
};
