// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QQuickPaintedItem>

namespace vesk {

/// The picture of a checkbox: a ring, or a filled circle of the same size with a tick.
class BoxMark : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool isTicked MEMBER m_isTicked NOTIFY changed)
    Q_PROPERTY(QColor ringColor MEMBER m_ringColor NOTIFY changed)
    Q_PROPERTY(QColor fillColor MEMBER m_fillColor NOTIFY changed)
    Q_PROPERTY(QColor tickColor MEMBER m_tickColor NOTIFY changed)

public:
    explicit BoxMark(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;

Q_SIGNALS:
    void changed();

private:
    bool m_isTicked = false;
    QColor m_ringColor;
    QColor m_fillColor;
    QColor m_tickColor;
};

} // namespace vesk
