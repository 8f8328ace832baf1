// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

/// What the theme decides from the desktop's own colours.
class ThemeRules : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Whether the window's ground calls for the dark theme.
    Q_INVOKABLE static bool isDark(const QColor& canvas);

    /// Whether the theme's ink reads well enough on both grounds; if not, the desktop's own text
    /// colour takes its place.
    Q_INVOKABLE static bool inkReads(const QColor& ink, const QColor& canvas, const QColor& card);
};
