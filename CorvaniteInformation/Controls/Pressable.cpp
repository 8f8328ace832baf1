#include "Pressable.h"

namespace {

bool isFromKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

bool isEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

Pressable::Pressable(QQuickItem* parent) : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptHoverEvents(true);
    setActiveFocusOnTab(true);
}

void Pressable::hoverEnterEvent(QHoverEvent* /*event*/)
{
    setHovered(true);
}

void Pressable::hoverLeaveEvent(QHoverEvent* /*event*/)
{
    setHovered(false);
}

void Pressable::mousePressEvent(QMouseEvent* /*event*/)
{
    forceActiveFocus(Qt::MouseFocusReason);
    setDown(true);
}

void Pressable::mouseMoveEvent(QMouseEvent* event)
{
    setDown(contains(event->position()));
}

void Pressable::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    if (m_down) {
        setDown(false);
        Q_EMIT clicked();
    }
}

void Pressable::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void Pressable::mouseUngrabEvent()
{
    setDown(false);
}

void Pressable::keyPressEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat()) {
        event->ignore();
    } else if (event->key() == Qt::Key_Space) {
        setDown(true);
    } else if (isEnter(*event)) {
        Q_EMIT clicked();
    } else {
        event->ignore();
    }
}

void Pressable::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() != Qt::Key_Space || event->isAutoRepeat()) {
        event->ignore();
    } else if (m_down) {
        setDown(false);
        Q_EMIT clicked();
    }
}

void Pressable::focusInEvent(QFocusEvent* event)
{
    // Coming back to the window does not tell how the focus was got.
    if (event->reason() != Qt::ActiveWindowFocusReason) {
        m_focusFromKeyboard = isFromKeyboard(event->reason());
    }
    setVisualFocus(m_focusFromKeyboard);
}

void Pressable::focusOutEvent(QFocusEvent* /*event*/)
{
    setDown(false);
    setVisualFocus(false);
}

void Pressable::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    const bool gone =
        (change == ItemEnabledHasChanged || change == ItemVisibleHasChanged) && !data.boolValue;
    if (gone) {
        setHovered(false);
        setDown(false);
    }
}

void Pressable::setHovered(bool hovered)
{
    if (m_hovered != hovered) {
        m_hovered = hovered;
        Q_EMIT hoveredChanged();
    }
}

void Pressable::setDown(bool down)
{
    if (m_down != down) {
        m_down = down;
        Q_EMIT downChanged();
    }
}

void Pressable::setVisualFocus(bool visualFocus)
{
    if (m_visualFocus != visualFocus) {
        m_visualFocus = visualFocus;
        Q_EMIT visualFocusChanged();
    }
}
