#include "ScreenListener.h"

#include <utility>

namespace {

QStringList s_announced;
QStringList s_focused;

void hear(QAccessibleEvent* event)
{
    const auto* const element = event->accessibleInterface();
    if (!element) {
        return;
    }
    const auto name = element->text(QAccessible::Name);
    if (event->type() == QAccessible::Focus) {
        s_focused.append(name);
    }
    if (event->type() == QAccessible::ObjectShow && element->role() == QAccessible::Notification) {
        s_announced.append(name);
    }
}

} // namespace

ScreenListener::ScreenListener() : m_previous(QAccessible::installUpdateHandler(&hear))
{
    s_announced.clear();
    s_focused.clear();
}

ScreenListener::~ScreenListener()
{
    QAccessible::installUpdateHandler(m_previous);
}

QStringList ScreenListener::announced()
{
    return std::exchange(s_announced, {});
}

QStringList ScreenListener::focused()
{
    return std::exchange(s_focused, {});
}
