// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickPaintedItem>

namespace vesk {

/// Vesk's own icon, at the size of the item.
class ProductMark : public QQuickPaintedItem
{
    Q_OBJECT
    QML_ELEMENT

public:
    explicit ProductMark(QQuickItem *parent = nullptr);

    void paint(QPainter *painter) override;
};

} // namespace vesk
