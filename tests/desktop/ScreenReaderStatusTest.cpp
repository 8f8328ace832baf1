// SPDX-License-Identifier: Apache-2.0

#include "ScreenReaderStatus.h"
#include "SessionBus.h"
#include "Subject.h"

#include <QDBusMessage>
#include <QSignalSpy>
#include <QTest>

namespace {

const auto statusPath = u"/org/a11y/bus"_qs;
const auto status = u"org.a11y.Status"_qs;
const auto properties = u"org.freedesktop.DBus.Properties"_qs;

} // namespace

/// The accessibility bus of a desktop.
class AccessibilityBus : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.a11y.Status")
    Q_PROPERTY(bool IsEnabled MEMBER m_enabled)
    Q_PROPERTY(bool ScreenReaderEnabled MEMBER m_screenReader)

public:
    AccessibilityBus(QDBusConnection bus, bool enabled, bool screenReader)
        : m_bus(bus), m_enabled(enabled), m_screenReader(screenReader)
    {
        m_bus.registerObject(statusPath, this, QDBusConnection::ExportAllProperties);
        m_bus.registerService(u"org.a11y.Bus"_qs);
    }

    ~AccessibilityBus() override
    {
        m_bus.unregisterObject(statusPath);
        m_bus.unregisterService(u"org.a11y.Bus"_qs);
    }

    void change(const QString& interface, const QString& name, bool value)
    {
        auto message = QDBusMessage::createSignal(statusPath, properties, u"PropertiesChanged"_qs);
        message << interface << QVariantMap{{name, value}} << QStringList();
        m_bus.send(message);
    }

private:
    QDBusConnection m_bus;
    bool m_enabled;
    bool m_screenReader;
};

class ScreenReaderStatusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isPresentWhereTheDesktopSaysSo_data()
    {
        QTest::addColumn<bool>("enabled");
        QTest::addColumn<bool>("screenReader");

        QTest::newRow("a screen reader") << false << true;
        QTest::newRow("another technology") << true << false;
        QTest::newRow("both") << true << true;
    }

    void isPresentWhereTheDesktopSaysSo()
    {
        QFETCH(const bool, enabled);
        QFETCH(const bool, screenReader);
        const AccessibilityBus desktop(m_bus.desktop(), enabled, screenReader);
        const ScreenReaderStatus reader(m_bus.program());
        QVERIFY(!reader.present());
        QSignalSpy changes(&reader, &ScreenReaderStatus::presentChanged);
        QVERIFY(changes.wait());
        QVERIFY(reader.present());
        QCOMPARE(changes.size(), 1);
        QCOMPARE(changes.constFirst().constFirst().toBool(), true);
    }

    void isAbsentWhereNeitherIsEnabled()
    {
        const AccessibilityBus desktop(m_bus.desktop(), false, false);
        const ScreenReaderStatus reader(m_bus.program());
        m_bus.settle();
        QVERIFY(!reader.present());
    }

    void followsChanges()
    {
        AccessibilityBus desktop(m_bus.desktop(), false, false);
        const ScreenReaderStatus reader(m_bus.program());
        m_bus.settle();

        desktop.change(status, u"ScreenReaderEnabled"_qs, true);
        QTRY_VERIFY(reader.present());
        desktop.change(status, u"ScreenReaderEnabled"_qs, false);
        QTRY_VERIFY(!reader.present());
    }

    void passesOverOtherProperties()
    {
        AccessibilityBus desktop(m_bus.desktop(), false, false);
        const ScreenReaderStatus reader(m_bus.program());
        desktop.change(u"org.example.Status"_qs, u"ScreenReaderEnabled"_qs, true);
        desktop.change(status, u"Other"_qs, true);
        m_bus.settle();
        QVERIFY(!reader.present());
    }

    void aMissingBusIsNoFailure()
    {
        const ScreenReaderStatus reader(QDBusConnection(u"nowhere"_qs));
        QVERIFY(!reader.present());
    }

private:
    SessionBus m_bus;
};

TEST_SUBJECT(ScreenReaderStatusTest)
#include "ScreenReaderStatusTest.moc"
