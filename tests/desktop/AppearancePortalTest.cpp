// SPDX-License-Identifier: Apache-2.0

#include "AppearancePortal.h"
#include "SessionBus.h"
#include "Subject.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QSignalSpy>
#include <QTest>

using Settings = QMap<QString, QVariantMap>;
using ColorScheme = AppearancePortal::ColorScheme;

namespace {

const auto service = u"org.freedesktop.portal.Desktop"_qs;
const auto portalPath = u"/org/freedesktop/portal/desktop"_qs;
const auto interface = u"org.freedesktop.portal.Settings"_qs;
const auto appearance = u"org.freedesktop.appearance"_qs;
const auto animation = u"org.gnome.desktop.interface"_qs;

} // namespace

/// The settings portal of a desktop.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    Portal(QDBusConnection bus, Settings settings) : m_bus(bus), m_settings(std::move(settings))
    {
        m_bus.registerObject(portalPath, this, QDBusConnection::ExportScriptableSlots);
        m_bus.registerService(service);
    }

    ~Portal() override
    {
        m_bus.unregisterObject(portalPath);
        m_bus.unregisterService(service);
    }

    void change(const QString& nameSpace, const QString& key, const QVariant& value)
    {
        auto message = QDBusMessage::createSignal(portalPath, interface, u"SettingChanged"_qs);
        message << nameSpace << key << QVariant::fromValue(QDBusVariant(value));
        m_bus.send(message);
    }

    int readCount() const { return m_readCount; }

public Q_SLOTS:
    Q_SCRIPTABLE QMap<QString, QVariantMap> ReadAll(const QStringList& nameSpaces)
    {
        ++m_readCount;
        Settings asked;
        for (const auto& nameSpace : nameSpaces) {
            if (m_settings.contains(nameSpace)) {
                asked.insert(nameSpace, m_settings.value(nameSpace));
            }
        }
        return asked;
    }

private:
    QDBusConnection m_bus;
    Settings m_settings;
    int m_readCount = 0;
};

class AppearancePortalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { qDBusRegisterMetaType<Settings>(); }

    void readsTheScheme_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<ColorScheme>("scheme");

        QTest::newRow("dark") << QVariant(1U) << ColorScheme::Dark;
        QTest::newRow("light") << QVariant(2U) << ColorScheme::Light;
    }

    void readsTheScheme()
    {
        QFETCH(const QVariant, value);
        QFETCH(const ColorScheme, scheme);
        const Portal desktop(m_bus.desktop(), {{appearance, {{u"color-scheme"_qs, value}}}});
        const AppearancePortal portal(m_bus.program());
        QSignalSpy changes(&portal, &AppearancePortal::colorSchemeChanged);
        QVERIFY(changes.wait());
        QCOMPARE(portal.colorScheme(), scheme);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.first().first().value<ColorScheme>(), scheme);
    }

    void readsReducedMotion()
    {
        const Portal desktop(m_bus.desktop(), {{animation, {{u"enable-animations"_qs, false}}}});
        const AppearancePortal portal(m_bus.program());
        QSignalSpy changes(&portal, &AppearancePortal::reducedMotionChanged);
        QVERIFY(changes.wait());
        QVERIFY(portal.reducedMotion());
    }

    void keepsItsValuesWithoutPreference()
    {
        const Portal desktop(m_bus.desktop(),
                             {{appearance, {{u"color-scheme"_qs, 0U}, {u"contrast"_qs, 1U}}},
                              {animation, {{u"enable-animations"_qs, true}}}});
        const AppearancePortal portal(m_bus.program());
        const QSignalSpy schemeChanges(&portal, &AppearancePortal::colorSchemeChanged);
        const QSignalSpy motionChanges(&portal, &AppearancePortal::reducedMotionChanged);
        QTRY_COMPARE(desktop.readCount(), 1);
        m_bus.settle();
        QCOMPARE(portal.colorScheme(), ColorScheme::NoPreference);
        QVERIFY(!portal.reducedMotion());
        QCOMPARE(schemeChanges.size(), 0);
        QCOMPARE(motionChanges.size(), 0);
    }

    void followsChanges()
    {
        Portal desktop(m_bus.desktop(), {{appearance, {{u"color-scheme"_qs, 1U}}}});
        const AppearancePortal portal(m_bus.program());
        QTRY_COMPARE(portal.colorScheme(), ColorScheme::Dark);

        desktop.change(appearance, u"color-scheme"_qs, 2U);
        QTRY_COMPARE(portal.colorScheme(), ColorScheme::Light);
        desktop.change(appearance, u"color-scheme"_qs, 0U);
        QTRY_COMPARE(portal.colorScheme(), ColorScheme::NoPreference);
        desktop.change(animation, u"enable-animations"_qs, false);
        QTRY_VERIFY(portal.reducedMotion());
        desktop.change(animation, u"enable-animations"_qs, true);
        QTRY_VERIFY(!portal.reducedMotion());
    }

    void passesOverOtherSettings()
    {
        Portal desktop(m_bus.desktop(), {});
        const AppearancePortal portal(m_bus.program());
        desktop.change(u"org.example"_qs, u"color-scheme"_qs, 1U);
        desktop.change(appearance, u"accent-color"_qs, 1U);
        desktop.change(appearance, u"color-scheme"_qs, 2U);
        QTRY_COMPARE(portal.colorScheme(), ColorScheme::Light);
        QVERIFY(!portal.reducedMotion());
    }

    void aMissingPortalIsNoFailure()
    {
        const AppearancePortal portal(m_bus.program());
        m_bus.settle();
        QCOMPARE(portal.colorScheme(), ColorScheme::NoPreference);
        QVERIFY(!portal.reducedMotion());
    }

    void aMissingBusIsNoFailure()
    {
        const AppearancePortal portal(QDBusConnection(u"nowhere"_qs));
        QCOMPARE(portal.colorScheme(), ColorScheme::NoPreference);
        QVERIFY(!portal.reducedMotion());
    }

private:
    SessionBus m_bus;
};

TEST_SUBJECT(AppearancePortalTest)
#include "AppearancePortalTest.moc"
