// SPDX-License-Identifier: Apache-2.0

#include "ReadingOrder.h"

#include <algorithm>

namespace {

/// Where it begins to show. What has no height only holds others together.
qreal topOf(QQuickItem* item)
{
    return item->y() + (item->height() > 0 ? 0 : item->childrenRect().y());
}

} // namespace

void ReadingOrder::setItems(QQuickItem* items)
{
    if (m_items == items) {
        return;
    }
    if (m_items) {
        m_items->disconnect(this);
    }
    m_items = items;
    if (items) {
        connect(items, &QQuickItem::childrenChanged, this, &ReadingOrder::watchChildren);
        watchChildren();
    }
    Q_EMIT itemsChanged();
}

void ReadingOrder::watchChildren()
{
    const auto children = m_items->childItems();
    for (const QQuickItem* child : children) {
        connect(child, &QQuickItem::yChanged, this, &ReadingOrder::sortLater, Qt::UniqueConnection);
        connect(child, &QQuickItem::childrenRectChanged, this, &ReadingOrder::sortLater,
                Qt::UniqueConnection);
    }
    sortLater();
}

// A view moves many items at a time.
void ReadingOrder::sortLater()
{
    if (!m_sortPending) {
        m_sortPending = true;
        QMetaObject::invokeMethod(this, &ReadingOrder::sort, Qt::QueuedConnection);
    }
}

void ReadingOrder::sort()
{
    m_sortPending = false;
    if (!m_items) {
        return;
    }
    auto children = m_items->childItems();
    if (std::ranges::is_sorted(children, {}, topOf)) {
        return;
    }
    std::ranges::stable_sort(children, {}, topOf);
    for (qsizetype i = 1; i < children.size(); ++i) {
        children.at(i)->stackAfter(children.at(i - 1));
    }
}
