// SPDX-License-Identifier: MIT
#pragma once

#include <QQuickItem>
#include <QQuickWindow>

namespace vesk {

/// All visible items of the window that `isWanted` accepts.
QList<QQuickItem *> shownItems(const QQuickWindow &window, auto isWanted)
{
    QList<QQuickItem *> found;
    QList<QQuickItem *> left{window.contentItem()};
    while (!left.isEmpty()) {
        QQuickItem *item = left.takeFirst();
        if (!item->isVisible() || item->opacity() == 0)
            continue;
        if (isWanted(*item))
            found.append(item);
        left += item->childItems();
    }
    return found;
}

inline bool isOfType(const QQuickItem &item, const QByteArray &type)
{
    return QByteArray(item.metaObject()->className()).startsWith(type + "_QMLTYPE");
}

} // namespace vesk
