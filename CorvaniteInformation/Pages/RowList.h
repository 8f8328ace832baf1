// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAbstractListModel>
#include <QByteArray>
#include <QHash>
#include <QtQml/qqmlregistration.h>

/// The rows of one view, each a value under the role "row".
class RowList : public QAbstractListModel
{
    Q_OBJECT
    QML_ANONYMOUS

public:
    static constexpr int rowRole = Qt::UserRole;

    using QAbstractListModel::QAbstractListModel;

    QHash<int, QByteArray> roleNames() const override
    {
        return {{rowRole, QByteArrayLiteral("row")}};
    }
};
