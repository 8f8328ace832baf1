#pragma once

#include <QAccessible>
#include <QStringList>

/// Hears what a screen reader is told by itself, while it lives. There is one at a time.
class ScreenListener
{
public:
    ScreenListener() : m_previous(QAccessible::installUpdateHandler(&hear))
    {
        s_announced.clear();
        s_focused.clear();
    }

    ~ScreenListener() { QAccessible::installUpdateHandler(m_previous); }

    Q_DISABLE_COPY_MOVE(ScreenListener)

    /// The notifications that have appeared since this was asked last.
    static QStringList announced() { return std::exchange(s_announced, {}); }
    /// The names of what has got the focus since this was asked last.
    static QStringList focused() { return std::exchange(s_focused, {}); }

private:
    static void hear(QAccessibleEvent* event)
    {
        const auto* const element = event->accessibleInterface();
        if (!element) {
            return;
        }
        const auto name = element->text(QAccessible::Name);
        if (event->type() == QAccessible::Focus) {
            s_focused.append(name);
        }
        if (event->type() == QAccessible::ObjectShow &&
            element->role() == QAccessible::Notification) {
            s_announced.append(name);
        }
    }

    QAccessible::UpdateHandler m_previous;
    static inline QStringList s_announced;
    static inline QStringList s_focused;
};
