// SPDX-License-Identifier: MIT
#include "components/appicon.h"

#include "components/surroundings.h"

#include <QPainter>
#include <QQmlEngine>
#include <QQuickWindow>

namespace vesk {

AppIcon::AppIcon(QQuickItem *parent)
    : QQuickPaintedItem(parent)
{
}

void AppIcon::paint(QPainter *painter)
{
    const QQmlEngine *engine = qmlEngine(this);
    const QIcon icon = engine && !m_bundleId.isEmpty() ? Surroundings::of(*engine).icon(m_bundleId) : QIcon();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (!icon.isNull()) {
        // Use the screen's pixel density, which the painter's device does not report.
        const qreal density = window() ? window()->effectiveDevicePixelRatio() : 1;
        const QPixmap pixmap = icon.pixmap(boundingRect().size().toSize(), density);
        QRectF place(QPointF(), QSizeF(pixmap.size()).scaled(boundingRect().size(), Qt::KeepAspectRatio));
        place.moveCenter(boundingRect().center());
        painter->drawPixmap(place, pixmap, pixmap.rect());
        return;
    }
    const qreal side = 0.85 * size();
    const qreal gap = (size() - side) / 2;
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_tileColor);
    painter->drawRoundedRect(QRectF(gap, gap, side, side), 0.25 * size(), 0.25 * size());
}

void AppIcon::setBundleId(const QString &bundleId)
{
    if (m_bundleId == bundleId)
        return;
    m_bundleId = bundleId;
    update();
    Q_EMIT bundleIdChanged();
}

void AppIcon::setSize(qreal size)
{
    if (qFuzzyCompare(this->size(), size))
        return;
    setImplicitSize(size, size);
    Q_EMIT sizeChanged();
}

void AppIcon::setTileColor(const QColor &color)
{
    if (m_tileColor == color)
        return;
    m_tileColor = color;
    update();
    Q_EMIT tileColorChanged();
}

} // namespace vesk
