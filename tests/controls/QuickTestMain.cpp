// SPDX-License-Identifier: Apache-2.0

#include <QAccessible>
#include <QGuiApplication>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlError>
#include <QtQuickTest>

#include <cstdlib>

namespace {

qsizetype warningCount = 0;

} // namespace

/// Lets the tests import the application's module, and counts the warnings that its QML gives. The
/// tests know it as `screenReader`.
class QuickTestSetup : public QObject
{
    Q_OBJECT

public:
    /// As when a screen reader starts: controls then announce themselves anew.
    Q_INVOKABLE void start()
    {
        QAccessible::setActive(false);
        QAccessible::setActive(true);
    }

public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine* engine)
    {
        engine->addImportPath(u":/qt/qml"_qs);
        engine->rootContext()->setContextProperty(u"screenReader"_qs, this);
        connect(engine, &QQmlEngine::warnings,
                [](const QList<QQmlError>& warnings) { warningCount += warnings.size(); });
    }
};

int main(int argc, char* argv[])
{
    QuickTestSetup setup;
    const int failures = quick_test_main_with_setup(argc, argv, "screens", nullptr, &setup);
    if (warningCount > 0) {
        qCritical("%lld QML warnings", static_cast<long long>(warningCount));
        return EXIT_FAILURE;
    }
    return failures;
}

#include "QuickTestMain.moc"
