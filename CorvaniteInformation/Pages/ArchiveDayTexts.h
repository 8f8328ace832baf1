// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "SelectionDay.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// The texts around the featured signals on the page of an archived day.
struct ArchiveDayTexts
{
    Q_GADGET
    QML_VALUE_TYPE(archiveDayTexts)

    Q_PROPERTY(QString title MEMBER title CONSTANT FINAL)
    Q_PROPERTY(QString lead MEMBER lead CONSTANT FINAL)
    Q_PROPERTY(QString weekLink MEMBER weekLink CONSTANT FINAL)
    Q_PROPERTY(QString count MEMBER count CONSTANT FINAL)
    Q_PROPERTY(QString previousDate MEMBER previousDate CONSTANT FINAL)
    Q_PROPERTY(QString previousText MEMBER previousText CONSTANT FINAL)
    Q_PROPERTY(QString nextDate MEMBER nextDate CONSTANT FINAL)
    Q_PROPERTY(QString nextText MEMBER nextText CONSTANT FINAL)

public:
    /// @param daysNewestFirst the whole selection history
    static ArchiveDayTexts from(const SelectionDay& day,
                                const QList<SelectionDay>& daysNewestFirst);

    QString title;
    QString lead;
    /// Empty for a day that belongs to no week.
    QString weekLink;
    QString count;
    /// The nearest earlier and later day of the history; empty where there is none.
    QString previousDate;
    QString previousText;
    QString nextDate;
    QString nextText;

    friend bool operator==(const ArchiveDayTexts&, const ArchiveDayTexts&) = default;
};
