// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RowList.h"

#include <QPointer>
#include <QtQml/qqmlregistration.h>

/// Two lists of rows as one, for a view that shows the second below the first. What comes, goes,
/// moves or changes in either does so here, so that what stays keeps its delegate.
class JoinedRows : public RowList
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QAbstractItemModel* first READ first WRITE setFirst NOTIFY firstChanged FINAL)
    Q_PROPERTY(QAbstractItemModel* second READ second WRITE setSecond NOTIFY secondChanged FINAL)

public:
    using RowList::RowList;

    /// Each is a list of rows, or nothing.
    QAbstractItemModel* first() const { return m_first; }
    void setFirst(QAbstractItemModel* first);
    QAbstractItemModel* second() const { return m_second; }
    void setSecond(QAbstractItemModel* second);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

Q_SIGNALS:
    void firstChanged();
    void secondChanged();

private:
    using Part = QPointer<QAbstractItemModel>;

    void replace(Part& part, QAbstractItemModel* rows);
    void follow(const Part& part);
    /// Where the part's rows begin.
    int beginOf(const Part& part) const { return &part == &m_first ? 0 : countOf(m_first); }
    static int countOf(const Part& part) { return part ? part->rowCount() : 0; }

    Part m_first;
    Part m_second;
};
