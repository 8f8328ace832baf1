// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "CustomInformationSource.h"
#include "InformationSignal.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <utility>

/// One row of the kept surface: a kept signal or something the reader handed in.
struct KeptRow
{
    Q_GADGET
    QML_VALUE_TYPE(keptRow)

    Q_PROPERTY(QString itemId MEMBER itemId CONSTANT FINAL)
    Q_PROPERTY(bool custom MEMBER custom CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString status MEMBER status CONSTANT FINAL)
    Q_PROPERTY(QString address READ address CONSTANT FINAL)

public:
    static KeptRow from(const InformationSignal& signal);
    static KeptRow from(const CustomInformationSource& source);

    /// Of the signal, or the UUID of the handed-in item.
    QString itemId;
    /// Handed in by the reader.
    bool custom = false;
    /// The signal's title, or the hand-in itself.
    QString title;
    QString status;
    /// Of the signal, as it came.
    QString originalURL;

    /// Of the signal's original; empty when it is no address to open. Looked at for the rows that
    /// are shown alone.
    QString address() const;

    std::pair<bool, QString> key() const { return {custom, itemId}; }

    friend bool operator==(const KeptRow&, const KeptRow&) = default;
};
