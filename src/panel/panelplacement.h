// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

namespace vesk {

inline constexpr qreal kPanelWidth = 440;
inline constexpr qreal kMinimumPanelHeight = 420;
inline constexpr qreal kDefaultPanelHeight = 620;

/// Where the panel stands on a screen: in the bottom right corner of its visible frame, 10 points in,
/// and as high as wanted, as far as the screen and the panel's minimum let it. Points, y upwards.
[[nodiscard]] QRectF panelFrame(const QRectF &visibleFrame, qreal wantedHeight);

} // namespace vesk
