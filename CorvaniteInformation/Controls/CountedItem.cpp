// SPDX-License-Identifier: Apache-2.0

#include "CountedItem.h"

#include "CountedItemAccessible.h"

namespace {

QAccessibleInterface* accessibleOf(const QString& className, QObject* object)
{
    return className == QLatin1StringView(CountedItem::staticMetaObject.className())
               ? new CountedItemAccessible(qobject_cast<CountedItem*>(object))
               : nullptr;
}

} // namespace

CountedItem::CountedItem(QQuickItem* parent) : QQuickItem(parent)
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(accessibleOf);
        return true;
    }();
}

void CountedItem::setCount(int count)
{
    if (m_count != count) {
        m_count = count;
        Q_EMIT countChanged();
    }
}
