// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Rows of a view that a screen reader counts as one list, each told as "2 of 3". It is told of all
/// of them: those that the view has not made are empty items. The rows that are made are its
/// children, each with its place from 0 as the property `position`.
class CountedItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

    /// How many rows there are, made or not.
    Q_PROPERTY(int count READ count WRITE setCount NOTIFY countChanged REQUIRED FINAL)

public:
    explicit CountedItem(QQuickItem* parent = nullptr);

    int count() const { return m_count; }
    void setCount(int count);

Q_SIGNALS:
    void countChanged();

private:
    int m_count = 0;
};
