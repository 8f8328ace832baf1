// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSourceEntry.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One row of the registry of collection sources.
struct SourceEntryRow
{
    Q_GADGET
    QML_VALUE_TYPE(sourceEntryRow)

    Q_PROPERTY(QString number MEMBER number CONSTANT FINAL)
    Q_PROPERTY(QString name MEMBER name CONSTANT FINAL)
    Q_PROPERTY(QString description MEMBER description CONSTANT FINAL)
    Q_PROPERTY(QString address MEMBER address CONSTANT FINAL)

public:
    /// @param number the running number, from 1
    static SourceEntryRow from(const InformationSourceEntry& entry, qsizetype number);

    /// At least two digits.
    QString number;
    QString name;
    QString description;
    /// Of the home page; empty when it is no address to open.
    QString address;

    friend bool operator==(const SourceEntryRow&, const SourceEntryRow&) = default;
};
