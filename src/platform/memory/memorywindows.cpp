// SPDX-License-Identifier: MIT
#include "platform/memory/memorywindows.h"

#include "platform/screens.h"

#include <QWindow>

namespace vesk {

MemoryWindows::MemoryWindows(const Screens &screens)
    : m_screens(screens)
{
}

void MemoryWindows::prepare(QWindow &window, Kind kind)
{
    Q_UNUSED(window)
    Q_UNUSED(kind)
}

bool MemoryWindows::setFrame(QWindow &window, const QRectF &frame)
{
    if (!m_isPlaceable)
        return false;
    m_frame = frame;
    window.setGeometry(m_screens.flipped(frame).toRect());
    return true;
}

void MemoryWindows::setCornerRadius(QWindow &window, qreal radius)
{
    Q_UNUSED(window)
    Q_UNUSED(radius)
}

void MemoryWindows::setComposited(bool isComposited)
{
    if (m_isComposited == isComposited)
        return;
    m_isComposited = isComposited;
    Q_EMIT compositedChanged();
}

} // namespace vesk
