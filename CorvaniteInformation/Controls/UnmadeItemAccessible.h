// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAccessible>

/// What a screen reader is told in place of a list's item that is not made: that there is one, out
/// of sight.
class UnmadeItemAccessible : public QAccessibleInterface
{
public:
    /// @param list outlives it
    UnmadeItemAccessible(const QAccessibleInterface& list, int index) : m_list(list), m_index(index)
    {
    }

    int index() const { return m_index; }

    bool isValid() const override { return m_list.isValid(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(m_list.object());
    }
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QString text(QAccessible::Text /*kind*/) const override { return {}; }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    QRect rect() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.offscreen = true;
        return state;
    }

private:
    const QAccessibleInterface& m_list;
    int m_index;
};
