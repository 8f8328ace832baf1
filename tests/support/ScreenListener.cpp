// SPDX-License-Identifier: Apache-2.0

#include "ScreenListener.h"

#include "ScreenReader.h"

ScreenListener::ScreenListener(QQuickItem* root)
{
    listenTo(root);
}

void ScreenListener::listenTo(QQuickItem* item)
{
    if (ScreenReader::role(item) == QAccessible::Notification) {
        QObject::connect(item, &QQuickItem::visibleChanged, &m_context, [this, item] {
            if (item->isVisible()) {
                m_announced.append(ScreenReader::name(item));
            }
        });
    }
    const auto children = item->childItems();
    for (auto* const child : children) {
        listenTo(child);
    }
}
