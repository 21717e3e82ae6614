// SPDX-License-Identifier: MIT
#include "panel/panelplacement.h"

#include <algorithm>

namespace vesk {

QRectF panelFrame(const QRectF &visibleFrame, qreal wantedHeight)
{
    constexpr qreal kMargin = 10;
    const qreal height =
        std::min(visibleFrame.height() - 2 * kMargin, std::max(wantedHeight, kMinimumPanelHeight));
    // With y pointing up, a rectangle's right() is its right edge, and y() its bottom edge.
    return {visibleFrame.right() - kPanelWidth - kMargin, visibleFrame.y() + kMargin, kPanelWidth, height};
}

} // namespace vesk
