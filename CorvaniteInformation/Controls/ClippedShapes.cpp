// SPDX-License-Identifier: Apache-2.0

#include "ClippedShapes.h"

void ClippedShapes::setPane(QQuickItem* pane)
{
    if (m_pane == pane) {
        return;
    }
    if (m_pane) {
        m_pane->disconnect(this);
    }
    m_pane = pane;
    if (pane) {
        connect(pane, &QQuickItem::windowChanged, this, &ClippedShapes::followWindow);
    }
    followWindow(pane ? pane->window() : nullptr);
    Q_EMIT paneChanged();
}

void ClippedShapes::followWindow(QQuickWindow* window)
{
    disconnect(m_frames);
    if (window) {
        m_frames =
            connect(window, &QQuickWindow::afterAnimating, this, [this] { hideIn(*m_pane); });
    }
}

void ClippedShapes::hideIn(const QQuickItem& item) const
{
    const QRectF sight(QPointF(), m_pane->size());
    const auto children = item.childItems();
    for (QQuickItem* child : children) {
        if (child->inherits("QQuickShape")) {
            const auto place = child->mapRectToItem(m_pane, child->boundingRect());
            child->setOpacity(sight.contains(place) ? 1 : 0);
        } else {
            hideIn(*child);
        }
    }
}
