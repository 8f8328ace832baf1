// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

/// Whether the desktop says that a screen reader or another assistive technology is there, now and
/// as it changes. It asks without waiting, and starts nothing: where the accessibility bus is not
/// up there is none.
/// https://gitlab.gnome.org/GNOME/at-spi2-core/-/blob/main/xml/org.a11y.Status.xml
class ScreenReaderStatus : public QObject
{
    Q_OBJECT

public:
    explicit ScreenReaderStatus(QDBusConnection bus, QObject* parent = nullptr);

    bool present() const { return m_enabled || m_screenReader; }

Q_SIGNALS:
    void presentChanged(bool present);

private Q_SLOTS:
    void takeChange(const QString& interface, const QVariantMap& changed,
                    const QStringList& invalidated);

private:
    void take(const QVariantMap& values);

    bool m_enabled = false;
    bool m_screenReader = false;
};
