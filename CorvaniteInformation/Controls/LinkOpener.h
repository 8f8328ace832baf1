// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// The one way from the screens to the system's browser.
class LinkOpener : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    using QObject::QObject;

    /// Opens a web address that is safe to open; any other does nothing.
    Q_INVOKABLE static void open(const QString& address);
};
