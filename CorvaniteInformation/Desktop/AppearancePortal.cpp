// SPDX-License-Identifier: Apache-2.0

#include "AppearancePortal.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMap>
#include <QVariantMap>

using Settings = QMap<QString, QVariantMap>;

namespace {

const auto service = u"org.freedesktop.portal.Desktop"_qs;
const auto path = u"/org/freedesktop/portal/desktop"_qs;
const auto interface = u"org.freedesktop.portal.Settings"_qs;
constexpr QStringView appearance = u"org.freedesktop.appearance";
constexpr QStringView animation = u"org.gnome.desktop.interface";

} // namespace

AppearancePortal::AppearancePortal(QDBusConnection bus, QObject* parent) : QObject(parent)
{
    qDBusRegisterMetaType<Settings>();

    // No service is named here, since Qt would wait for the bus to tell its owner.
    bus.connect({}, path, interface, u"SettingChanged"_qs, this,
                SLOT(takeSetting(QString, QString, QDBusVariant)));

    auto request = QDBusMessage::createMethodCall(service, path, interface, u"ReadAll"_qs);
    request << QStringList{appearance.toString(), animation.toString()};
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(request), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<Settings> reply = *watcher;
        if (reply.isError()) {
            return;
        }
        const auto settings = reply.value();
        for (auto space = settings.cbegin(); space != settings.cend(); ++space) {
            for (auto setting = space->cbegin(); setting != space->cend(); ++setting) {
                take(space.key(), setting.key(), *setting);
            }
        }
    });
}

void AppearancePortal::takeSetting(const QString& nameSpace, const QString& key,
                                   const QDBusVariant& value)
{
    take(nameSpace, key, value.variant());
}

void AppearancePortal::take(const QString& nameSpace, const QString& key, const QVariant& value)
{
    if (nameSpace == appearance && key == u"color-scheme") {
        switch (value.toUInt()) {
        case 1:
            return setColorScheme(ColorScheme::Dark);
        case 2:
            return setColorScheme(ColorScheme::Light);
        default:
            return setColorScheme(ColorScheme::NoPreference);
        }
    }
    if (nameSpace == animation && key == u"enable-animations") {
        setReducedMotion(!value.toBool());
    }
}

void AppearancePortal::setColorScheme(ColorScheme colorScheme)
{
    if (m_colorScheme == colorScheme) {
        return;
    }
    m_colorScheme = colorScheme;
    Q_EMIT colorSchemeChanged(m_colorScheme);
}

void AppearancePortal::setReducedMotion(bool reducedMotion)
{
    if (m_reducedMotion == reducedMotion) {
        return;
    }
    m_reducedMotion = reducedMotion;
    Q_EMIT reducedMotionChanged(m_reducedMotion);
}
