// SPDX-License-Identifier: MIT
#pragma once

#include "platform/windows.h"

namespace vesk {

class Screens;

/// Places real windows in the coordinates of the given screens, and records what was requested.
class MemoryWindows final : public Windows
{
    Q_OBJECT

public:
    explicit MemoryWindows(const Screens &screens);

    void prepare(QWindow &window, Kind kind) override;
    bool setFrame(QWindow &window, const QRectF &frame) override;
    void setCornerRadius(QWindow &window, qreal radius) override;
    [[nodiscard]] bool isComposited() const override { return m_isComposited; }

    /// The frame that was requested last; null before the first.
    [[nodiscard]] QRectF frame() const { return m_frame; }
    void setPlaceable(bool isPlaceable) { m_isPlaceable = isPlaceable; }
    void setComposited(bool isComposited);

private:
    const Screens &m_screens;
    QRectF m_frame;
    bool m_isPlaceable = true;
    bool m_isComposited = true;
};

} // namespace vesk
