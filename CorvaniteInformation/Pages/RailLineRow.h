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
    Q_PROPERTY(bool seen MEMBER seen CONSTANT FINAL)
    Q_PROPERTY(QString number READ number CONSTANT FINAL)
    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    Q_PROPERTY(QString badge READ badge CONSTANT FINAL)
    Q_PROPERTY(QString name READ name CONSTANT FINAL)

public:
    /// @param position the line's place in the list, from 0
    static RailLineRow from(const InformationSignal& signal, bool seen, int position);

    QString signalId;
    int position = 0;
    QString signalTitle;
    bool seen = false;

    // Texts are made for the lines that are shown alone.

    /// The running number from 01.
    QString number() const;
    QString title() const;
    QString badge() const;
    /// For a screen reader.
    QString name() const;

    friend bool operator==(const RailLineRow&, const RailLineRow&) = default;
};
