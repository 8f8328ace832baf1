// SPDX-License-Identifier: Apache-2.0

#include "CountedItemAccessible.h"

#include "CountedItem.h"
#include "UnmadeItemAccessible.h"

#include <QQuickWindow>

#include <algorithm>

namespace {

int positionOf(const QQuickItem& row)
{
    return row.property("position").toInt();
}

/// The first that a screen reader is told of, of the item and what is in it.
QAccessibleInterface* firstIn(QQuickItem* item)
{
    if (auto* const told = QAccessible::queryAccessibleInterface(item)) {
        return told;
    }
    const auto children = item->childItems();
    for (auto* const child : children) {
        if (auto* const told = firstIn(child)) {
            return told;
        }
    }
    return nullptr;
}

} // namespace

CountedItemAccessible::CountedItemAccessible(CountedItem* item) : QAccessibleObject(item) {}

CountedItemAccessible::~CountedItemAccessible()
{
    for (const auto id : std::as_const(m_unmade)) {
        QAccessible::deleteAccessibleInterface(id);
    }
}

CountedItem& CountedItemAccessible::item() const
{
    return *static_cast<CountedItem*>(object());
}

QWindow* CountedItemAccessible::window() const
{
    return item().window();
}

QAccessibleInterface* CountedItemAccessible::parent() const
{
    for (auto* around = item().parentItem(); around; around = around->parentItem()) {
        if (auto* const told = QAccessible::queryAccessibleInterface(around)) {
            return told;
        }
    }
    return QAccessible::queryAccessibleInterface(window());
}

int CountedItemAccessible::childCount() const
{
    return item().count();
}

QAccessibleInterface* CountedItemAccessible::child(int index) const
{
    if (index < 0 || index >= childCount()) {
        return nullptr;
    }
    const auto rows = item().childItems();
    const auto row = std::ranges::find(
        rows, index, [](const QQuickItem* candidate) { return positionOf(*candidate); });
    auto* const made = row == rows.cend() ? nullptr : firstIn(*row);
    return made ? made : unmade(index);
}

int CountedItemAccessible::indexOfChild(const QAccessibleInterface* child) const
{
    if (const auto* const unmade = dynamic_cast<const UnmadeItemAccessible*>(child)) {
        return unmade->index();
    }
    const auto* row = qobject_cast<const QQuickItem*>(child->object());
    while (row && row->parentItem() != &item()) {
        row = row->parentItem();
    }
    return row ? positionOf(*row) : -1;
}

QString CountedItemAccessible::text(QAccessible::Text /*kind*/) const
{
    return {};
}

QRect CountedItemAccessible::rect() const
{
    if (!window()) {
        return {};
    }
    const auto place = item().mapRectToScene(item().childrenRect());
    return place.toRect().translated(window()->mapToGlobal(QPoint()));
}

QAccessible::State CountedItemAccessible::state() const
{
    QAccessible::State state;
    state.invisible = !item().isVisible();
    return state;
}

QAccessibleInterface* CountedItemAccessible::unmade(int index) const
{
    if (!m_unmade.contains(index)) {
        auto* const made = new UnmadeItemAccessible(*this, index);
        m_unmade.insert(index, QAccessible::registerAccessibleInterface(made));
    }
    return QAccessible::accessibleInterface(m_unmade.value(index));
}
