// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace vesk {

/// A circle, a ring or an arc. Without a GPU, the scene graph's fully rounded rectangles come out flattened;
/// this is truly round.
class Disc : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY changed)
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY changed)
    /// Width of the line, drawn inside the circle's edge; 0 for no line.
    Q_PROPERTY(qreal borderWidth READ borderWidth WRITE setBorderWidth NOTIFY changed)
    /// How much of the line is drawn, clockwise from the top; 1 is the whole ring.
    Q_PROPERTY(qreal fraction READ fraction WRITE setFraction NOTIFY changed)

public:
    explicit Disc(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

    [[nodiscard]] QColor color() const { return m_color; }
    void setColor(const QColor &color) { assign(m_color, color); }
    [[nodiscard]] QColor borderColor() const { return m_borderColor; }
    void setBorderColor(const QColor &color) { assign(m_borderColor, color); }
    [[nodiscard]] qreal borderWidth() const { return m_borderWidth; }
    void setBorderWidth(qreal width) { assign(m_borderWidth, width); }
    [[nodiscard]] qreal fraction() const { return m_fraction; }
    void setFraction(qreal fraction) { assign(m_fraction, fraction); }

Q_SIGNALS:
    void changed();

private:
    template <typename Value>
    void assign(Value &member, const Value &value)
    {
        if (member == value)
            return;
        member = value;
        update();
        Q_EMIT changed();
    }

    QColor m_color = Qt::transparent;
    QColor m_borderColor = Qt::transparent;
    qreal m_borderWidth = 0;
    qreal m_fraction = 1;
};

} // namespace vesk
