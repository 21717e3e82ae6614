// SPDX-License-Identifier: MIT
#include "components/symbol.h"

#include "components/symboltable.h"

#include <QPainter>
#include <QSvgRenderer>

namespace vesk {

Symbol::Symbol(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void Symbol::paint(QPainter *painter)
{
    const std::optional<QString> picture = symboltable::findPicture(m_name);
    if (!picture)
        return;
    // The pictures are black; the colour goes over whatever they cover.
    QSvgRenderer renderer(*picture);
    const QRectF area = boundingRect();
    renderer.render(painter, area);
    painter->setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter->fillRect(area, m_color);
}

void Symbol::setName(const QString &name)
{
    if (m_name == name)
        return;
    m_name = name;
    update();
    Q_EMIT nameChanged();
}

void Symbol::setColor(const QColor &color)
{
    if (m_color == color)
        return;
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

void Symbol::setSize(qreal size)
{
    if (qFuzzyCompare(this->size(), size))
        return;
    setImplicitSize(size, size);
    Q_EMIT sizeChanged();
}

} // namespace vesk
