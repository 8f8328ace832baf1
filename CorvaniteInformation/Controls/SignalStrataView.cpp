// SPDX-License-Identifier: Apache-2.0

#include "SignalStrataView.h"

#include "SignalStrata.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double groundRadius = 9;
constexpr double bandRadius = 1.5;
constexpr double groundOpacity = 0.06;

QColor translucent(QColor color, double opacity)
{
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

QPainterPath roundedPath(const QRectF& rectangle, double radius)
{
    QPainterPath path;
    path.addRoundedRect(rectangle, radius, radius);
    return path;
}

} // namespace

SignalStrataView::SignalStrataView(QQuickItem* parent) : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

void SignalStrataView::setSignalID(const QString& signalID)
{
    if (m_signalID == signalID) {
        return;
    }
    m_signalID = signalID;
    update();
    Q_EMIT signalIDChanged();
}

void SignalStrataView::setColor(const QColor& color)
{
    if (m_color == color) {
        return;
    }
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void SignalStrataView::setSide(qreal side)
{
    if (implicitWidth() == side) {
        return;
    }
    setImplicitSize(side, side);
    Q_EMIT sideChanged();
}

// The bands are cut to the ground by geometry: a painter's clip has jagged edges.
void SignalStrataView::paint(QPainter* painter)
{
    const double scale = width() / SignalStrata::side;
    const auto ground = roundedPath(boundingRect(), groundRadius * scale);
    painter->fillPath(ground, translucent(m_color, groundOpacity));

    for (const auto& band : SignalStrata::bands(m_signalID)) {
        const QRectF rectangle(band.x * scale, band.y * scale, band.width * scale,
                               band.height * scale);
        painter->fillPath(roundedPath(rectangle, bandRadius * scale).intersected(ground),
                          translucent(m_color, band.opacity));
    }
}
