// SPDX-License-Identifier: Apache-2.0

#include "Pressable.h"

namespace {

bool isFromKeyboard(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

// With a modifier a key is a shortcut of whoever holds the control.
bool isPlain(const QKeyEvent& event)
{
    return !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
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
    m_hovered = true;
}

void Pressable::hoverLeaveEvent(QHoverEvent* /*event*/)
{
    m_hovered = false;
}

void Pressable::mousePressEvent(QMouseEvent* /*event*/)
{
    if (m_activeFocusOnPress) {
        forceActiveFocus(Qt::MouseFocusReason);
    }
    m_down = true;
}

void Pressable::mouseMoveEvent(QMouseEvent* event)
{
    m_down = contains(event->position());
}

void Pressable::mouseReleaseEvent(QMouseEvent* /*event*/)
{
    if (m_down) {
        m_down = false;
        Q_EMIT clicked();
    }
}

void Pressable::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

void Pressable::mouseUngrabEvent()
{
    m_down = false;
}

void Pressable::keyPressEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat() || !isPlain(*event)) {
        event->ignore();
    } else if (event->key() == Qt::Key_Space) {
        m_down = true;
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
        m_down = false;
        Q_EMIT clicked();
    }
}

void Pressable::focusInEvent(QFocusEvent* event)
{
    // It tells screen readers.
    QQuickItem::focusInEvent(event);
    // Coming back to the window, or being enabled again, does not tell how the focus was got.
    if (event->reason() != Qt::ActiveWindowFocusReason && !m_disabled) {
        m_focusFromKeyboard = isFromKeyboard(event->reason());
    }
    m_visualFocus = m_focusFromKeyboard;
}

void Pressable::focusOutEvent(QFocusEvent* event)
{
    QQuickItem::focusOutEvent(event);
    m_down = false;
    m_visualFocus = false;
}

void Pressable::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemEnabledHasChanged) {
        m_disabled = !data.boolValue;
    }
    const bool gone =
        (change == ItemEnabledHasChanged || change == ItemVisibleHasChanged) && !data.boolValue;
    if (gone) {
        m_hovered = false;
        m_down = false;
    }
}
