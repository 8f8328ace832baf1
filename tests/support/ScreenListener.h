#pragma once

#include <QAccessible>
#include <QStringList>

/// Hears what a screen reader is told by itself, while it lives. There is one at a time.
class ScreenListener
{
public:
    ScreenListener();
    ~ScreenListener();
    Q_DISABLE_COPY_MOVE(ScreenListener)

    /// The notifications that have appeared since this was asked last.
    static QStringList announced();
    /// The names of what has got the focus since this was asked last.
    static QStringList focused();

private:
    QAccessible::UpdateHandler m_previous;
};
