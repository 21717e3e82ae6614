// SPDX-License-Identifier: MIT
#include "samplewindows.h"

#include "platform/screens.h"

#include <QPainterPath>
#include <QRegion>
#include <QWindow>

namespace vesk {

SampleWindows::SampleWindows(const Screens &screens, bool isComposited)
    : m_screens(screens)
    , m_isComposited(isComposited)
{
}

void SampleWindows::prepare(QWindow &window, Kind kind)
{
    // The window's own flags are enough here.
    Q_UNUSED(window)
    Q_UNUSED(kind)
}

bool SampleWindows::setFrame(QWindow &window, const QRectF &frame)
{
    window.setGeometry(m_screens.flipped(frame).toRect());
    return true;
}

void SampleWindows::setCornerRadius(QWindow &window, qreal radius)
{
    if (m_isComposited)
        return;
    QPainterPath path;
    path.addRoundedRect(QRectF(QPointF(), window.size()), radius, radius);
    window.setMask(QRegion(path.toFillPolygon().toPolygon()));
}

} // namespace vesk
