// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QAccessibleObject>
#include <QHash>

class CountedItem;

/// What a screen reader is told of a `CountedItem`: a list of as many items as there are rows.
class CountedItemAccessible : public QAccessibleObject
{
public:
    explicit CountedItemAccessible(CountedItem* item);

    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::List; }
    QAccessible::State state() const override;

protected:
    ~CountedItemAccessible() override;

private:
    CountedItem& item() const;
    /// In place of a row that is not made.
    QAccessibleInterface* unmade(int index) const;

    mutable QHash<int, QAccessible::Id> m_unmade;
};
