// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

/// A text under a label: a rule and what it asks for, a service and what is collected from it, a
/// figure and what it counts.
struct LabelledTextRow
{
    Q_GADGET
    QML_VALUE_TYPE(labelledTextRow)

    Q_PROPERTY(QString label MEMBER label CONSTANT FINAL)
    Q_PROPERTY(QString text MEMBER text CONSTANT FINAL)
    /// Both, for a screen reader.
    Q_PROPERTY(QString name READ name CONSTANT FINAL)

public:
    QString label;
    QString text;

    QString name() const { return label + u' ' + text; }

    friend bool operator==(const LabelledTextRow&, const LabelledTextRow&) = default;
};
