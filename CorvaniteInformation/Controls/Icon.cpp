// SPDX-License-Identifier: Apache-2.0

#include "Icon.h"

#include "SvgPath.h"

#include <QPainter>
#include <QPen>

namespace {

constexpr double grid = 24;
constexpr double usualSide = 16;

} // namespace

Icon::Icon(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
    setImplicitSize(usualSide, usualSide);
}

void Icon::setPath(const QString& path)
{
    if (m_path == path) {
        return;
    }
    m_path = path;
    m_drawing = SvgPath::parse(path).value_or(QPainterPath());
    update();
    Q_EMIT pathChanged();
}

void Icon::setColor(const QColor& color)
{
    if (m_color == color) {
        return;
    }
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void Icon::setSide(qreal side)
{
    if (implicitWidth() == side) {
        return;
    }
    setImplicitSize(side, side);
    Q_EMIT sideChanged();
}

void Icon::setStroke(qreal stroke)
{
    if (m_stroke == stroke) {
        return;
    }
    m_stroke = stroke;
    update();
    Q_EMIT strokeChanged();
}

void Icon::setFilled(bool isFilled)
{
    if (m_isFilled == isFilled) {
        return;
    }
    m_isFilled = isFilled;
    update();
    Q_EMIT filledChanged();
}

void Icon::paint(QPainter* painter)
{
    painter->scale(width() / grid, height() / grid);
    if (m_isFilled) {
        painter->fillPath(m_drawing, m_color);
    } else {
        painter->strokePath(m_drawing,
                            {m_color, m_stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
    }
}
