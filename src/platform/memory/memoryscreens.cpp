// SPDX-License-Identifier: MIT
#include "platform/memory/memoryscreens.h"

namespace vesk {

QRectF MemoryScreens::flipped(const QRectF &rectangle) const
{
    const qreal height = m_screens.isEmpty() ? 0 : m_screens.first().frame.height();
    return {rectangle.x(), height - rectangle.y() - rectangle.height(), rectangle.width(),
            rectangle.height()};
}

void MemoryScreens::setScreens(const QList<Screen> &screens)
{
    m_screens = screens;
    Q_EMIT changed();
}

} // namespace vesk
