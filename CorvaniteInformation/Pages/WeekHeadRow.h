// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"
#include "WeeklyDigest.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// The head of one week of the weekly digest.
struct WeekHeadRow
{
    Q_GADGET
    QML_VALUE_TYPE(weekHeadRow)

    Q_PROPERTY(QString range MEMBER range CONSTANT FINAL)
    Q_PROPERTY(QString badge MEMBER badge CONSTANT FINAL)
    Q_PROPERTY(bool running MEMBER running CONSTANT FINAL)
    Q_PROPERTY(QString summary MEMBER summary CONSTANT FINAL)

public:
    /// @param index the signals that are still there, by id
    /// @param currentWeekId the id of the present week at UTC+8
    static WeekHeadRow from(const WeeklyDigest::Week& week,
                            const QHash<QString, InformationSignal>& index,
                            const std::optional<QString>& currentWeekId);

    QString weekId;
    QString range;
    QString badge;
    /// The week is the present one.
    bool running = false;
    QString summary;

    friend bool operator==(const WeekHeadRow&, const WeekHeadRow&) = default;
};
