// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QProperty>
#include <QtQml/qqmlregistration.h>

/// Whether lists hold rows far out of sight. They are for the Tab key, which goes on to what stands
/// there, and for a screen reader, which reads on; until one of these is met they need not be made.
class RowReach : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    Q_PROPERTY(bool far READ far NOTIFY farChanged BINDABLE bindableFar FINAL)
    /// A screen reader is there.
    Q_PROPERTY(bool readAloud READ readAloud WRITE setReadAloud NOTIFY readAloudChanged FINAL)

public:
    explicit RowReach(QObject* parent = nullptr);

    bool far() const { return m_far; }
    bool readAloud() const { return m_readAloud; }
    void setReadAloud(bool readAloud) { m_readAloud = readAloud; }
    QBindable<bool> bindableFar() const { return &m_far; }

    bool eventFilter(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    void farChanged();
    void readAloudChanged();

private:
    Q_OBJECT_BINDABLE_PROPERTY(RowReach, bool, m_readAloud, &RowReach::readAloudChanged)
    Q_OBJECT_BINDABLE_PROPERTY(RowReach, bool, m_tabbed)
    Q_OBJECT_BINDABLE_PROPERTY(RowReach, bool, m_far, &RowReach::farChanged)
};
