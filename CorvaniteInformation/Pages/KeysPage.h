// SPDX-License-Identifier: Apache-2.0

#pragma once

#include "LabelledTextRow.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// What can be done by keyboard. docs/keyboard.md has the same table.
class KeysPage : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QString title READ title CONSTANT FINAL)
    /// All rows, for a screen reader.
    Q_PROPERTY(QString description READ description CONSTANT FINAL)
    /// Keys, and what they do.
    Q_PROPERTY(QList<LabelledTextRow> rows READ rows CONSTANT FINAL)

public:
    using QObject::QObject;

    static QString title();
    static QString description();
    static QList<LabelledTextRow> rows();
};
