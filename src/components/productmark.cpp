// SPDX-License-Identifier: MIT
#include "components/productmark.h"

#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace vesk {

ProductMark::ProductMark(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void ProductMark::paint(QPainter *painter)
{
    QSvgRenderer renderer(u":/vesk/icon/org.vesk.Vesk.svg"_s);
    painter->setRenderHint(QPainter::Antialiasing);
    renderer.render(painter, boundingRect());
}

} // namespace vesk
