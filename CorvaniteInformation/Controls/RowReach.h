// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QProperty>
#include <QtQml/qqmlregistration.h>

/// How far lists hold their rows. A screen reader, which reads on, asks for many out of sight at
/// any time, and the Tab key for the next one; the window, until it has drawn once, only for what
/// is read first.
class RowReach : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    /// A screen reader is there.
    Q_PROPERTY(bool readAloud READ readAloud WRITE setReadAloud NOTIFY readAloudChanged FINAL)
    /// The window has drawn nothing yet.
    Q_PROPERTY(bool opening READ opening WRITE setOpening NOTIFY openingChanged FINAL)

public:
    explicit RowReach(QObject* parent = nullptr);

    bool readAloud() const { return m_readAloud; }
    void setReadAloud(bool readAloud) { m_readAloud = readAloud; }

    bool opening() const { return m_opening; }
    void setOpening(bool opening) { m_opening = opening; }

    bool eventFilter(QObject* receiver, QEvent* event) override;

Q_SIGNALS:
    void readAloudChanged();
    void openingChanged();
    /// The Tab key is pressed, and has moved nothing yet.
    void tabPressed(bool forward);

private:
    Q_OBJECT_BINDABLE_PROPERTY(RowReach, bool, m_readAloud, &RowReach::readAloudChanged)
    Q_OBJECT_BINDABLE_PROPERTY(RowReach, bool, m_opening, &RowReach::openingChanged)
};
