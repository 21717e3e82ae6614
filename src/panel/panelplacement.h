// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

namespace vesk {

inline constexpr qreal kPanelWidth = 440;
inline constexpr qreal kMinimumPanelHeight = 420;
inline constexpr qreal kDefaultPanelHeight = 620;

/// The panel's position on a screen: in the bottom right corner of its visible area, inset by 10 points, and
/// as high as wanted within the limits of the screen and the panel's minimum. In points, y upwards.
[[nodiscard]] QRectF panelFrame(const QRectF &visibleFrame, qreal wantedHeight);

} // namespace vesk
