// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationLane.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

/// One chip of the lane filter.
struct LaneChipRow
{
    Q_GADGET
    QML_VALUE_TYPE(laneChipRow)

    Q_PROPERTY(QString lane MEMBER lane CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    Q_PROPERTY(QColor square MEMBER square CONSTANT FINAL)
    Q_PROPERTY(bool selected MEMBER selected CONSTANT FINAL)

public:
    /// @param lane nothing for the chip of all lanes
    /// @param count the signals that the chip leaves
    static LaneChipRow from(std::optional<InformationLane> lane, qsizetype count, bool selected);

    /// The lane's token; empty for the chip of all lanes.
    QString lane;
    QString text;
    /// The lane's colour; transparent for the chip of all lanes.
    QColor square = Qt::transparent;
    bool selected = false;

    const QString& key() const { return lane; }

    friend bool operator==(const LaneChipRow&, const LaneChipRow&) = default;
};
