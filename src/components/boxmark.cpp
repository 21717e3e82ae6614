// SPDX-License-Identifier: MIT
#include "components/boxmark.h"

#include <QPainter>
#include <QPainterPath>

namespace vesk {

namespace {

/// The side of the square that the mark was designed for.
constexpr qreal kSide = 17;

} // namespace

BoxMark::BoxMark(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
    connect(this, &BoxMark::changed, this, [this] { update(); });
}

void BoxMark::paint(QPainter *painter)
{
    const QRectF square(0, 0, kSide, kSide);
    constexpr qreal kLine = 1.4;
    const QRectF circle = square.adjusted(kLine / 2, kLine / 2, -kLine / 2, -kLine / 2);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->scale(width() / kSide, height() / kSide);
    if (!m_isTicked) {
        painter->setPen(QPen(m_ringColor, kLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawEllipse(circle);
        return;
    }
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_fillColor);
    painter->drawEllipse(square);

    const qreal middle = square.center().y();
    QPainterPath tick(QPointF(square.left() + 4.8, middle + 0.2));
    tick.lineTo(square.left() + 7.6, middle + 3);
    tick.lineTo(square.right() - 4.4, middle - 3.2);
    painter->setPen(QPen(m_tickColor, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(tick);
}

} // namespace vesk
