// SPDX-License-Identifier: MIT
#include "components/disc.h"

#include <QPainter>

namespace vesk {

Disc::Disc(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void Disc::paint(QPainter *painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_color);
    painter->drawEllipse(boundingRect());
    if (m_borderWidth <= 0 || m_fraction <= 0)
        return;

    const qreal half = m_borderWidth / 2;
    const QRectF line = boundingRect().adjusted(half, half, -half, -half);
    painter->setPen(QPen(m_borderColor, m_borderWidth, Qt::SolidLine, Qt::RoundCap));
    painter->setBrush(Qt::NoBrush);
    if (m_fraction >= 1) {
        painter->drawEllipse(line);
        return;
    }
    // Angles are in sixteenths of a degree, from three o'clock and counterclockwise.
    painter->drawArc(line, 90 * 16, qRound(-m_fraction * 360 * 16));
}

} // namespace vesk
