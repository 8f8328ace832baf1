// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One node of a signal's timeline.
struct TimelineNodeRow
{
    Q_GADGET
    QML_VALUE_TYPE(timelineNodeRow)

    Q_PROPERTY(QString date MEMBER date CONSTANT FINAL)
    Q_PROPERTY(QString summary MEMBER summary CONSTANT FINAL)
    Q_PROPERTY(QString source MEMBER source CONSTANT FINAL)
    Q_PROPERTY(bool isNow MEMBER isNow CONSTANT FINAL)
    Q_PROPERTY(bool isLast MEMBER isLast CONSTANT FINAL)
    /// All of it, for a screen reader.
    Q_PROPERTY(QString name READ name CONSTANT FINAL)

public:
    /// The signal's present state, then its recorded events in their order.
    static QList<TimelineNodeRow> timelineOf(const InformationSignal& signal);

    QString date;
    QString summary;
    /// Empty for the present state.
    QString source;
    /// The present state, which comes first.
    bool isNow = false;
    bool isLast = false;

    QString name() const;

    friend bool operator==(const TimelineNodeRow&, const TimelineNodeRow&) = default;
};
