// SPDX-License-Identifier: Apache-2.0

#include "SessionBus.h"

#include <QCoreApplication>
#include <QDBusMessage>

namespace {

const auto desktopName = u"desktop"_qs;
const auto programName = u"program"_qs;

} // namespace

SessionBus::SessionBus()
{
    m_daemon.start(u"dbus-daemon"_qs, {u"--session"_qs, u"--nofork"_qs, u"--print-address"_qs,
                                       u"--address=unix:tmpdir=/tmp"_qs});
    if (!m_daemon.waitForReadyRead()) {
        qFatal("The bus does not start: %s", qUtf8Printable(m_daemon.errorString()));
    }
    m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
}

SessionBus::~SessionBus()
{
    QDBusConnection::disconnectFromBus(desktopName);
    QDBusConnection::disconnectFromBus(programName);
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

QDBusConnection SessionBus::desktop() const
{
    return connection(desktopName);
}

QDBusConnection SessionBus::program() const
{
    return connection(programName);
}

void SessionBus::settle() const
{
    const auto ping = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_qs, u"/"_qs,
                                                     u"org.freedesktop.DBus"_qs, u"GetId"_qs);
    if (program().call(ping).type() != QDBusMessage::ReplyMessage) {
        qFatal("The bus does not answer");
    }
    QCoreApplication::processEvents();
}

QDBusConnection SessionBus::connection(const QString& name) const
{
    return QDBusConnection::connectToBus(m_address, name);
}
