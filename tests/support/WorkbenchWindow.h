#pragma once

#include "InformationModel.h"
#include "ScreenReader.h"

#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include <functional>

/// The program's whole window over a model, which has to outlive it.
class WorkbenchWindow
{
public:
    /// @param prepare is called before the engine loads anything
    explicit WorkbenchWindow(
        InformationModel& model, QSize size = {1120, 780},
        const std::function<void(QQmlEngine&)>& prepare = [](QQmlEngine&) {})
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
        if (!QTest::qWaitForWindowActive(m_window)) {
            qFatal("The window does not become active.");
        }
        ScreenReader::start();
    }

    QQuickWindow* window() const { return m_window; }
    QQuickItem* content() const { return m_window->contentItem(); }
    /// What the QML engine has complained about.
    const QStringList& warnings() const { return m_warnings; }

    void resize(QSize size)
    {
        m_window->resize(size);
        settle();
    }

    /// Waits until everything that was due is done and laid out.
    void settle() const
    {
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::processEvents();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            m_window->grabWindow();
        }
    }

    QQuickItem* find(const QString& name, QAccessible::Role role) const
    {
        return ScreenReader::find(content(), name, role);
    }

    QQuickItem* awaited(const QString& name, QAccessible::Role role) const
    {
        return ScreenReader::awaited(content(), name, role);
    }

    /// Presses the item once it is there; without one the test ends.
    void press(const QString& name, QAccessible::Role role = QAccessible::Button) const
    {
        auto* const item = awaited(name, role);
        if (!item) {
            qFatal("Nothing to press is named %s", qPrintable(name));
        }
        ScreenReader::press(item);
        settle();
    }

    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(m_window, key, modifiers);
        settle();
    }

    /// ASCII only.
    void type(const QByteArray& text) const
    {
        for (const char character : text) {
            QTest::keyClick(m_window, character);
        }
        settle();
    }

    bool hasFocus(const QString& name, QAccessible::Role role) const
    {
        const auto* const item = find(name, role);
        return item && item->hasActiveFocus();
    }

private:
    QQmlApplicationEngine m_engine;
    QQuickWindow* m_window = nullptr;
    QStringList m_warnings;
};
