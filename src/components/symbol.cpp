// SPDX-License-Identifier: MIT
#include "components/symbol.h"

#include "components/symboltable.h"

#include <QGuiApplication>
#include <QPainter>
#include <QSvgRenderer>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const auto kSlash = u".slash"_s;

/// Draws the diagonal line, with a gap around it, of a symbol's struck-through form.
void strike(QPainter &painter, const QRectF &area)
{
    const qreal unit = area.width() / 16;
    const QLineF line(area.left() + unit, area.top() + 1.5 * unit, area.right() - 1.5 * unit,
                      area.bottom() - unit);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setPen(QPen(Qt::black, 3.6 * unit, Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(line);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(QPen(Qt::black, 1.3 * unit, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(line);
}

} // namespace

Symbol::Symbol(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void Symbol::paint(QPainter *painter)
{
    const bool isStruck = m_name.endsWith(kSlash);
    const QString name = isStruck ? m_name.chopped(kSlash.size()) : m_name;
    const std::optional<QString> picture = symboltable::findPicture(name);
    if (!picture)
        return;
    // The pictures are black; this paints the colour over whatever they cover.
    QSvgRenderer renderer(*picture);
    const QRectF area = boundingRect();
    if (symboltable::isDirectional(name) && QGuiApplication::isRightToLeft())
        painter->setTransform(QTransform(-1, 0, 0, 1, area.width(), 0), true);
    renderer.render(painter, area);
    if (isStruck)
        strike(*painter, area);
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
