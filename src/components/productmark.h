// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickPaintedItem>

namespace vesk {

/// Vesk's own icon, scaled to the item.
class ProductMark : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ProductMark(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;
};

} // namespace vesk
