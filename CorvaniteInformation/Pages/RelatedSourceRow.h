// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "InformationRelatedSource.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// One further link of a signal.
struct RelatedSourceRow
{
    Q_GADGET
    QML_VALUE_TYPE(relatedSourceRow)

    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)
    Q_PROPERTY(QString address MEMBER address CONSTANT FINAL)

public:
    static QList<RelatedSourceRow> listOf(const QList<InformationRelatedSource>& sources);

    QString label;
    /// Empty when it is no address to open.
    QString address;

    friend bool operator==(const RelatedSourceRow&, const RelatedSourceRow&) = default;
};
