// SPDX-License-Identifier: Apache-2.0

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
        const std::function<void(QQmlEngine&)>& prepare = [](QQmlEngine&) {});

    QQuickWindow* window() const { return m_window; }
    QQuickItem* content() const { return m_window->contentItem(); }
    /// What the QML engine has complained about.
    const QStringList& warnings() const { return m_warnings; }

    void resize(QSize size);

    /// Waits until everything that was due is done and laid out.
    void settle() const;

    QQuickItem* find(const QString& name, QAccessible::Role role) const;

    QQuickItem* awaited(const QString& name, QAccessible::Role role) const;

    /// Presses the item once it is there; without one the test ends.
    void press(const QString& name, QAccessible::Role role = QAccessible::Button) const;

    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const;

    /// ASCII only.
    void type(const QByteArray& text) const;

    /// The reader turns to another window, and comes back after what happens meanwhile.
    void turnAway(const std::function<void()>& meanwhile) const;

    bool hasFocus(const QString& name, QAccessible::Role role) const;

private:
    QQmlApplicationEngine m_engine;
    QQuickWindow* m_window = nullptr;
    QStringList m_warnings;
};
