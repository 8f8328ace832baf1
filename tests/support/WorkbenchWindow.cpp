// SPDX-License-Identifier: Apache-2.0

#include "WorkbenchWindow.h"

#include <QSignalSpy>
#include <QTest>

namespace {

void activate(QWindow& window)
{
    window.requestActivate();
    if (!QTest::qWaitForWindowActive(&window)) {
        qFatal("The window does not become active.");
    }
}

} // namespace

WorkbenchWindow::WorkbenchWindow(InformationModel& model, QSize size,
                                 const std::function<void(QQmlEngine&)>& prepare)
{
    prepare(m_engine);
    QObject::connect(&m_engine, &QQmlEngine::warnings, &m_engine,
                     [this](const QList<QQmlError>& warnings) {
                         for (const auto& warning : warnings) {
                             m_warnings.append(warning.toString());
                         }
                     });
    m_engine.addImportPath(u":/qt/qml"_qs);
    // Without motion a screen stands still once its items are laid out.
    m_engine.setInitialProperties({{u"workbench"_qs, QVariant::fromValue(&model)},
                                   {u"width"_qs, size.width()},
                                   {u"height"_qs, size.height()},
                                   {u"reducedMotion"_qs, true},
                                   {u"readAloud"_qs, true}});
    m_engine.load(QUrl(
        u"qrc:/qt/qml/CorvaniteInformation/Screens/Workbench/InformationWorkbenchView.qml"_qs));
    if (m_engine.rootObjects().isEmpty()) {
        qFatal("The window cannot be made: %s", qPrintable(m_warnings.join(u'\n')));
    }
    m_window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().constFirst());
    const QSignalSpy frames(m_window, &QQuickWindow::frameSwapped);
    if (!QTest::qWaitForWindowActive(m_window)) {
        qFatal("The window does not become active.");
    }
    // With the second everything is there that is seen.
    if (!QTest::qWaitFor([&frames] { return frames.size() >= 2; })) {
        qFatal("The window does not draw.");
    }
    ScreenReader::start();
}

void WorkbenchWindow::resize(QSize size)
{
    m_window->resize(size);
    settle();
}

void WorkbenchWindow::settle() const
{
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        m_window->grabWindow();
    }
}

QQuickItem* WorkbenchWindow::find(const QString& name, QAccessible::Role role) const
{
    return ScreenReader::find(content(), name, role);
}

QQuickItem* WorkbenchWindow::awaited(const QString& name, QAccessible::Role role) const
{
    return ScreenReader::awaited(content(), name, role);
}

void WorkbenchWindow::press(const QString& name, QAccessible::Role role) const
{
    auto* const item = awaited(name, role);
    if (!item) {
        qFatal("Nothing to press is named %s", qPrintable(name));
    }
    ScreenReader::press(item);
    settle();
}

void WorkbenchWindow::pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_window, key, modifiers);
    settle();
}

void WorkbenchWindow::type(const QByteArray& text) const
{
    for (const char character : text) {
        QTest::keyClick(m_window, character);
    }
    settle();
}

void WorkbenchWindow::turnAway(const std::function<void()>& meanwhile) const
{
    QWindow other;
    other.show();
    activate(other);
    meanwhile();
    activate(*m_window);
}

bool WorkbenchWindow::hasFocus(const QString& name, QAccessible::Role role) const
{
    const auto* const item = find(name, role);
    return item && item->hasActiveFocus();
}
