// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// The decorative mark of a signal: its strata in one colour. The item is square and
/// has no place in the accessibility tree.
class SignalStrataView : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    Q_PROPERTY(
        QString signalID READ signalID WRITE setSignalID NOTIFY signalIDChanged REQUIRED FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)
    /// The length of the square's side in pixels.
    Q_PROPERTY(qreal side READ side WRITE setSide NOTIFY sideChanged REQUIRED FINAL)

public:
    explicit SignalStrataView(QQuickItem* parent = nullptr);

    const QString& signalID() const { return m_signalID; }
    const QColor& color() const { return m_color; }
    qreal side() const { return implicitWidth(); }

    void setSignalID(const QString& signalID);
    void setColor(const QColor& color);
    void setSide(qreal side);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void signalIDChanged();
    void colorChanged();
    void sideChanged();

private:
    QString m_signalID;
    QColor m_color;
};
