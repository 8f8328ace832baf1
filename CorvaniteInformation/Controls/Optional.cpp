// SPDX-License-Identifier: Apache-2.0

#include "Optional.h"

#include <QQmlInfo>

void Optional::setWhen(bool when)
{
    if (when == m_when) {
        return;
    }
    m_when = when;
    Q_EMIT whenChanged();
    if (!isComponentComplete()) {
        return;
    }
    if (m_when) {
        makeItem();
    } else {
        removeItem();
    }
}

void Optional::componentComplete()
{
    QQuickItem::componentComplete();
    if (m_when) {
        makeItem();
    }
}

void Optional::makeItem()
{
    m_item = qobject_cast<QQuickItem*>(m_delegate->beginCreate(m_delegate->creationContext()));
    if (!m_item) {
        qmlWarning(this, m_delegate->errors());
        return;
    }
    m_item->setParent(this);
    m_item->setParentItem(parentItem());
    m_item->stackAfter(this);
    m_delegate->completeCreate();
}

void Optional::removeItem()
{
    if (m_item) {
        m_item->setParentItem(nullptr);
        m_item->deleteLater();
        m_item = nullptr;
    }
}
