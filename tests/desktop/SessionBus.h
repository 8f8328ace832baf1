// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDBusConnection>
#include <QProcess>

/// A message bus of the test's own, with the desktop and the program on it.
class SessionBus
{
public:
    SessionBus();
    ~SessionBus();

    QDBusConnection desktop() const;
    QDBusConnection program() const;

    /// Everything sent on the bus before this call has arrived at the program when it returns.
    void settle() const;

private:
    QDBusConnection connection(const QString& name) const;

    QProcess m_daemon;
    QString m_address;
};
