// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

namespace vesk {

/// Screens as a test arranges them. At first there is one of 1600 by 1000 points, with the pointer on it.
class MemoryScreens final : public Screens
{
    Q_OBJECT

public:
    [[nodiscard]] QList<Screen> screens() const override { return m_screens; }
    [[nodiscard]] std::optional<QPointF> mouseLocation() const override { return m_mouse; }
    [[nodiscard]] QRectF flipped(const QRectF &rectangle) const override;

    void setScreens(const QList<Screen> &screens);
    void setMouseLocation(const std::optional<QPointF> &mouse) { m_mouse = mouse; }

private:
    QList<Screen> m_screens{{.frame = QRectF(0, 0, 1600, 1000), .visibleFrame = QRectF(0, 0, 1600, 1000)}};
    std::optional<QPointF> m_mouse = QPointF(800, 500);
};

} // namespace vesk
