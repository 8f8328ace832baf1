// SPDX-License-Identifier: Apache-2.0

#pragma once

#include <QColor>
#include <QPainterPath>
#include <QQuickPaintedItem>
#include <QtQml/qqmlregistration.h>

/// One of the drawings of IconPaths, scaled to a size. Decoration: a screen reader passes it over.
class Icon : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

    /// On a grid of 24; nothing is drawn where it is none.
    Q_PROPERTY(QString path READ path WRITE setPath NOTIFY pathChanged REQUIRED FINAL)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged REQUIRED FINAL)
    /// The length of the square's side in pixels.
    Q_PROPERTY(qreal size READ side WRITE setSide NOTIFY sideChanged FINAL)
    /// On the grid of 24.
    Q_PROPERTY(qreal stroke READ stroke WRITE setStroke NOTIFY strokeChanged FINAL)
    /// By the odd-even rule; else stroked.
    Q_PROPERTY(bool filled READ isFilled WRITE setFilled NOTIFY filledChanged FINAL)

public:
    explicit Icon(QQuickItem* parent = nullptr);

    const QString& path() const { return m_path; }
    const QColor& color() const { return m_color; }
    qreal side() const { return implicitWidth(); }
    qreal stroke() const { return m_stroke; }
    bool isFilled() const { return m_isFilled; }

    void setPath(const QString& path);
    void setColor(const QColor& color);
    void setSide(qreal side);
    void setStroke(qreal stroke);
    void setFilled(bool isFilled);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void pathChanged();
    void colorChanged();
    void sideChanged();
    void strokeChanged();
    void filledChanged();

private:
    QString m_path;
    QPainterPath m_drawing;
    QColor m_color;
    qreal m_stroke = 1.75;
    bool m_isFilled = false;
};
