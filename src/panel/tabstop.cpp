// SPDX-License-Identifier: MIT
#include "panel/tabstop.h"

namespace vesk {

TabStop::TabStop(QQuickItem *parent)
    : QQuickItem(parent)
{
    setActiveFocusOnTab(true);
}

void TabStop::focusInEvent(QFocusEvent *event)
{
    QQuickItem::focusInEvent(event);
    // Later, because a focus change during another one would be lost.
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
        QMetaObject::invokeMethod(this, &TabStop::reached, Qt::QueuedConnection);
}

} // namespace vesk
