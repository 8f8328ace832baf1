// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "RowList.h"

#include <QHash>
#include <QList>

#include <algorithm>
#include <type_traits>
#include <utility>

/// Rows of one kind. A row is known by its `key()`: `setRows` tells the view which rows came, went,
/// moved or changed, so that what stays keeps its delegate, and with it focus and scroll position.
template <typename Row>
class RowListModel : public RowList
{
public:
    using RowList::RowList;

    const QList<Row>& rows() const { return m_rows; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const bool known = checkIndex(index, CheckIndexOption::IndexIsValid) && role == rowRole;
        return known ? QVariant::fromValue(m_rows.at(index.row())) : QVariant();
    }

    /// Keys may repeat: equal keys are told apart by their order.
    void setRows(const QList<Row>& rows)
    {
        // Most actions change rows where they stand.
        if (std::ranges::equal(std::as_const(m_rows), rows, {}, &Row::key, &Row::key)) {
            for (qsizetype position = 0; position < rows.size(); ++position) {
                replace(position, rows.at(position));
            }
            return;
        }
        // And at first there is nothing to compare.
        if (m_rows.isEmpty()) {
            beginInsertRows({}, 0, static_cast<int>(rows.size() - 1));
            m_rows = rows;
            endInsertRows();
            return;
        }
        removeRowsMissingFrom(rows);
        KeyCounts waiting = countKeys(m_rows);
        // From here on, every row before `position` is the wanted one.
        for (qsizetype position = 0; position < rows.size();) {
            const Key key = rows.at(position).key();
            if (waiting.value(key) == 0) {
                position = insertRun(rows, position, waiting);
                continue;
            }
            --waiting[key];
            moveHere(key, position);
            replace(position, rows.at(position));
            ++position;
        }
    }

private:
    using Key = std::remove_cvref_t<std::invoke_result_t<decltype(&Row::key), const Row&>>;
    using KeyCounts = QHash<Key, qsizetype>;

    static KeyCounts countKeys(const QList<Row>& rows)
    {
        KeyCounts counts;
        counts.reserve(rows.size());
        for (const Row& row : rows) {
            ++counts[row.key()];
        }
        return counts;
    }

    void removeRowsMissingFrom(const QList<Row>& rows)
    {
        KeyCounts wanted = countKeys(rows);
        QList<bool> stays;
        stays.reserve(m_rows.size());
        for (const Row& row : std::as_const(m_rows)) {
            stays.append(wanted[row.key()]-- > 0);
        }
        for (qsizetype end = m_rows.size(); end > 0;) {
            qsizetype begin = end;
            while (begin > 0 && !stays.at(begin - 1)) {
                --begin;
            }
            if (begin == end) {
                --end;
                continue;
            }
            beginRemoveRows({}, static_cast<int>(begin), static_cast<int>(end - 1));
            m_rows.remove(begin, end - begin);
            endRemoveRows();
            end = begin;
        }
    }

    // Inserts the rows from `position` on, up to the next one that waits behind it; gives the
    // position after them.
    qsizetype insertRun(const QList<Row>& rows, qsizetype position, const KeyCounts& waiting)
    {
        qsizetype end = position + 1;
        while (end < rows.size() && waiting.value(rows.at(end).key()) == 0) {
            ++end;
        }
        beginInsertRows({}, static_cast<int>(position), static_cast<int>(end - 1));
        m_rows.insert(position, end - position, Row());
        std::copy(rows.begin() + position, rows.begin() + end, m_rows.begin() + position);
        endInsertRows();
        return end;
    }

    void moveHere(const Key& key, qsizetype position)
    {
        qsizetype from = position;
        while (m_rows.at(from).key() != key) {
            ++from;
        }
        if (from == position) {
            return;
        }
        beginMoveRows({}, static_cast<int>(from), static_cast<int>(from), {},
                      static_cast<int>(position));
        m_rows.move(from, position);
        endMoveRows();
    }

    void replace(qsizetype position, const Row& row)
    {
        if (m_rows.at(position) == row) {
            return;
        }
        m_rows.replace(position, row);
        const QModelIndex changed = index(static_cast<int>(position));
        Q_EMIT dataChanged(changed, changed);
    }

    QList<Row> m_rows;
};
