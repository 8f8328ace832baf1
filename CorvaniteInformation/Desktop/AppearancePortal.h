// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

/// What the desktop's settings portal says about appearance, now and as it changes. It asks without
/// waiting; where there is no portal the values stay as they begin.
/// https://flatpak.github.io/xdg-desktop-portal/docs/doc-org.freedesktop.portal.Settings.html
class AppearancePortal : public QObject
{
    Q_OBJECT

public:
    enum class ColorScheme { NoPreference, Dark, Light };
    Q_ENUM(ColorScheme)

    explicit AppearancePortal(QDBusConnection bus, QObject* parent = nullptr);

    ColorScheme colorScheme() const { return m_colorScheme; }
    /// Whether the desktop's own animations are off.
    bool reducedMotion() const { return m_reducedMotion; }

Q_SIGNALS:
    void colorSchemeChanged(AppearancePortal::ColorScheme colorScheme);
    void reducedMotionChanged(bool reducedMotion);

private Q_SLOTS:
    void takeSetting(const QString& nameSpace, const QString& key, const QDBusVariant& value);

private:
    void take(const QString& nameSpace, const QString& key, const QVariant& value);
    void setColorScheme(ColorScheme colorScheme);
    void setReducedMotion(bool reducedMotion);

    ColorScheme m_colorScheme = ColorScheme::NoPreference;
    bool m_reducedMotion = false;
};
