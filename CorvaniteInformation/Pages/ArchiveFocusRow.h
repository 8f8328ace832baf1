// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationSignal.h"

#include <QColor>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One featured signal on the page of an archived day.
struct ArchiveFocusRow
{
    Q_GADGET
    QML_VALUE_TYPE(archiveFocusRow)

    Q_PROPERTY(QString rank MEMBER rank CONSTANT FINAL)
    Q_PROPERTY(QColor laneColor MEMBER laneColor CONSTANT FINAL)
    Q_PROPERTY(QString laneAndSource MEMBER laneAndSource CONSTANT FINAL)
    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString why MEMBER why CONSTANT FINAL)
    Q_PROPERTY(QString caveat MEMBER caveat CONSTANT FINAL)
    Q_PROPERTY(QString sourceLine MEMBER sourceLine CONSTANT FINAL)
    Q_PROPERTY(QString address MEMBER address CONSTANT FINAL)

public:
    /// @param rank from 1
    static ArchiveFocusRow from(const InformationSignal& signal, qsizetype rank);

    /// At least two digits.
    QString rank;
    QColor laneColor;
    QString laneAndSource;
    QString title;
    QString why;
    QString caveat;
    QString sourceLine;
    /// Of the original; empty when it is no address to open.
    QString address;

    const QString& key() const { return rank; }

    friend bool operator==(const ArchiveFocusRow&, const ArchiveFocusRow&) = default;
};
