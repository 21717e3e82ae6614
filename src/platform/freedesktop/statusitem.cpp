// SPDX-License-Identifier: MIT
#include "platform/freedesktop/statusitem.h"

namespace vesk {

void StatusItem::Activate(int x, int y)
{
    Q_UNUSED(x);
    Q_UNUSED(y);
    // Answer the desktop first.
    QMetaObject::invokeMethod(this, m_activated, Qt::QueuedConnection);
}

void StatusItem::Scroll(int delta, const QString &orientation)
{
    Q_UNUSED(delta);
    Q_UNUSED(orientation);
}

} // namespace vesk
