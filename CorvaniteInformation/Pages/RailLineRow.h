// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One line of the list of everything in today's selection.
struct RailLineRow
{
    Q_GADGET
    QML_VALUE_TYPE(railLineRow)

    Q_PROPERTY(QString signalId MEMBER signalId CONSTANT FINAL)
    Q_PROPERTY(int position MEMBER position CONSTANT FINAL)
    Q_PROPERTY(QString number MEMBER number CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString badge MEMBER badge CONSTANT FINAL)
    Q_PROPERTY(bool seen MEMBER seen CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)

public:
    /// @param position the line's place in the list, from 0
    static RailLineRow from(const InformationSignal& signal, bool seen, int position);

    QString signalId;
    int position = 0;
    /// The running number from 01.
    QString number;
    QString title;
    QString badge;
    bool seen = false;
    /// For a screen reader.
    QString name;

    const QString& key() const { return signalId; }

    friend bool operator==(const RailLineRow&, const RailLineRow&) = default;
};
