// SPDX-License-Identifier: Apache-2.0

#include "JoinedRows.h"

void JoinedRows::setFirst(QAbstractItemModel* first)
{
    if (m_first != first) {
        replace(m_first, first);
        Q_EMIT firstChanged();
    }
}

void JoinedRows::setSecond(QAbstractItemModel* second)
{
    if (m_second != second) {
        replace(m_second, second);
        Q_EMIT secondChanged();
    }
}

int JoinedRows::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : countOf(m_first) + countOf(m_second);
}

QVariant JoinedRows::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const int secondBegin = beginOf(m_second);
    const auto& part = index.row() < secondBegin ? m_first : m_second;
    return part->index(index.row() - beginOf(part), 0).data(role);
}

void JoinedRows::replace(Part& part, QAbstractItemModel* rows)
{
    const int begin = beginOf(part);
    if (part) {
        part->disconnect(this);
    }
    if (const int count = countOf(part); count > 0) {
        beginRemoveRows({}, begin, begin + count - 1);
        part = nullptr;
        endRemoveRows();
    }
    if (const int count = rows ? rows->rowCount() : 0; count > 0) {
        beginInsertRows({}, begin, begin + count - 1);
        part = rows;
        endInsertRows();
    }
    part = rows;
    if (part) {
        follow(part);
    }
}

void JoinedRows::follow(const Part& part)
{
    const auto* const rows = part.data();
    connect(rows, &QAbstractItemModel::rowsAboutToBeInserted, this,
            [this, &part](const QModelIndex& /*parent*/, int first, int last) {
                beginInsertRows({}, beginOf(part) + first, beginOf(part) + last);
            });
    connect(rows, &QAbstractItemModel::rowsInserted, this, [this] { endInsertRows(); });
    connect(rows, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this, &part](const QModelIndex& /*parent*/, int first, int last) {
                beginRemoveRows({}, beginOf(part) + first, beginOf(part) + last);
            });
    connect(rows, &QAbstractItemModel::rowsRemoved, this, [this] { endRemoveRows(); });
    connect(rows, &QAbstractItemModel::rowsAboutToBeMoved, this,
            [this, &part](const QModelIndex& /*from*/, int first, int last,
                          const QModelIndex& /*to*/, int destination) {
                const int begin = beginOf(part);
                beginMoveRows({}, begin + first, begin + last, {}, begin + destination);
            });
    connect(rows, &QAbstractItemModel::rowsMoved, this, [this] { endMoveRows(); });
    connect(rows, &QAbstractItemModel::dataChanged, this,
            [this, &part](const QModelIndex& first, const QModelIndex& last) {
                const int begin = beginOf(part);
                Q_EMIT dataChanged(index(begin + first.row()), index(begin + last.row()));
            });
}
