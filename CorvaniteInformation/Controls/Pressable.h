// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QProperty>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

/// What can be pressed by pointer, Space and Enter, without any look. Unlike the toolkit's controls
/// it takes the role that QML gives it: those of Qt 6.4 tell a screen reader their own.
class Pressable : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT

    /// The pointer is over it.
    Q_PROPERTY(bool hovered READ hovered NOTIFY hoveredChanged FINAL)
    /// It is held by the pointer that is over it, or by Space.
    Q_PROPERTY(bool down READ down NOTIFY downChanged FINAL)
    /// A press by pointer gives it the focus. Off where the press is not to take the keyboard away
    /// from where the reader is.
    Q_PROPERTY(bool activeFocusOnPress READ activeFocusOnPress WRITE setActiveFocusOnPress NOTIFY
                   activeFocusOnPressChanged FINAL)
    /// It has the focus and got it from the keyboard.
    Q_PROPERTY(bool visualFocus READ visualFocus NOTIFY visualFocusChanged FINAL)

public:
    explicit Pressable(QQuickItem* parent = nullptr);

    bool hovered() const { return m_hovered; }
    bool down() const { return m_down; }
    bool activeFocusOnPress() const { return m_activeFocusOnPress; }
    void setActiveFocusOnPress(bool takes) { m_activeFocusOnPress = takes; }
    bool visualFocus() const { return m_visualFocus; }

Q_SIGNALS:
    void clicked();
    void hoveredChanged();
    void downChanged();
    void activeFocusOnPressChanged();
    void visualFocusChanged();

protected:
    void hoverEnterEvent(QHoverEvent* event) override;
    void hoverLeaveEvent(QHoverEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    Q_OBJECT_BINDABLE_PROPERTY(Pressable, bool, m_hovered, &Pressable::hoveredChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Pressable, bool, m_down, &Pressable::downChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(Pressable, bool, m_activeFocusOnPress, true,
                                         &Pressable::activeFocusOnPressChanged)
    Q_OBJECT_BINDABLE_PROPERTY(Pressable, bool, m_visualFocus, &Pressable::visualFocusChanged)
    bool m_focusFromKeyboard = false;
    /// It was disabled when that was told last.
    bool m_disabled = false;
};
