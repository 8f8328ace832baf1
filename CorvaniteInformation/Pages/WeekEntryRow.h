#pragma once

#include "InformationSignal.h"

#include <QColor>
#include <QHash>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One featured entry of a day of the weekly digest.
struct WeekEntryRow
{
    Q_GADGET
    QML_VALUE_TYPE(weekEntryRow)

    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(bool resolved MEMBER resolved CONSTANT FINAL)
    Q_PROPERTY(QColor laneColor MEMBER laneColor CONSTANT FINAL)
    Q_PROPERTY(QString laneName MEMBER laneName CONSTANT FINAL)

public:
    /// @param index the signals that are still there, by id
    static WeekEntryRow from(const QString& signalId,
                             const QHash<QString, InformationSignal>& index);

    QString title;
    /// The signal is still there; only then has it a lane.
    bool resolved = false;
    QColor laneColor;
    QString laneName;

    friend bool operator==(const WeekEntryRow&, const WeekEntryRow&) = default;
};
