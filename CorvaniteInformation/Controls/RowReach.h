// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QProperty>
#include <QtQml/qqmlregistration.h>

/// Who asks lists for rows out of sight: a screen reader, which reads on, for many of them at any
/// time, and the Tab key for the next one.
class RowReach : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    /// A screen reader is there.
    Q_PROPERTY(bool readAloud READ readAloud WRITE setReadAloud NOTIFY readAloudChanged FINAL)

public:
    explicit RowReach(QObject* parent = nullptr);

    bool readAloud() const { return m_readAloud; }
    void setReadAloud(bool readAloud) { m_readAloud = readAloud; }

    bool eventFilter(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    void readAloudChanged();
    /// The Tab key is pressed, and has moved nothing yet.
    void tabPressed(bool forward);

private:
    Q_OBJECT_BINDABLE_PROPERTY(RowReach, bool, m_readAloud, &RowReach::readAloudChanged)
};
