// SPDX-License-Identifier: Apache-2.0

#include "ScreenReaderStatus.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

const auto service = u"org.a11y.Bus"_qs;
const auto path = u"/org/a11y/bus"_qs;
const auto status = u"org.a11y.Status"_qs;
const auto properties = u"org.freedesktop.DBus.Properties"_qs;

} // namespace

ScreenReaderStatus::ScreenReaderStatus(QDBusConnection bus, QObject* parent) : QObject(parent)
{
    // No service is named here, since Qt would wait for the bus to tell its owner.
    bus.connect({}, path, properties, u"PropertiesChanged"_qs, this,
                SLOT(takeChange(QString, QVariantMap, QStringList)));

    auto request = QDBusMessage::createMethodCall(service, path, properties, u"GetAll"_qs);
    request.setAutoStartService(false);
    request << status;
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QVariantMap> reply = *watcher;
        if (!reply.isError()) {
            take(reply.value());
        }
    });
}

void ScreenReaderStatus::takeChange(const QString& interface, const QVariantMap& changed,
                                    const QStringList& /*invalidated*/)
{
    if (interface == status) {
        take(changed);
    }
}

void ScreenReaderStatus::take(const QVariantMap& values)
{
    const bool before = present();
    m_enabled = values.value(u"IsEnabled"_qs, m_enabled).toBool();
    m_screenReader = values.value(u"ScreenReaderEnabled"_qs, m_screenReader).toBool();
    if (present() != before) {
        Q_EMIT presentChanged(present());
    }
}
