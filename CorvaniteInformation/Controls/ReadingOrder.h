// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// Keeps the children of an item in the order from top to bottom. A view makes its delegates when
/// they are needed, and the Tab key and screen readers follow the order in which items stand among
/// their siblings.
class ReadingOrder : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickItem* items READ items WRITE setItems NOTIFY itemsChanged REQUIRED FINAL)

public:
    using QObject::QObject;

    QQuickItem* items() const { return m_items; }
    void setItems(QQuickItem* items);

    /// At once, for who goes by the order right after the items have changed; else it is done soon.
    Q_INVOKABLE void sort();

Q_SIGNALS:
    void itemsChanged();

private:
    void watchChildren();
    void sortLater();

    QPointer<QQuickItem> m_items;
    bool m_sortPending = false;
};
