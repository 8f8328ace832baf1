// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QObject>
#include <QPointer>
#include <QQuickItem>
#include <QQuickWindow>
#include <QtQml/qqmlregistration.h>

/// Hides each shape in a pane that is not whole in sight: where everything is drawn anew at once,
/// as after a change of colours, Qt 6.4 draws a shape as if nothing clipped it.
class ClippedShapes : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(QQuickItem* pane READ pane WRITE setPane NOTIFY paneChanged REQUIRED FINAL)

public:
    using QObject::QObject;

    QQuickItem* pane() const { return m_pane; }
    void setPane(QQuickItem* pane);

Q_SIGNALS:
    void paneChanged();

private:
    void followWindow(QQuickWindow* window);
    void hideIn(const QQuickItem& item) const;

    QPointer<QQuickItem> m_pane;
    QMetaObject::Connection m_frames;
};
