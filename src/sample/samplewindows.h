// SPDX-License-Identifier: MIT
#pragma once

#include "platform/windows.h"

namespace vesk {

class Screens;

/// Places windows using Qt alone, as well as that works on any desktop.
class SampleWindows final : public Windows
{
    Q_OBJECT

public:
    SampleWindows(const Screens &screens, bool isComposited);

    void prepare(QWindow &window, Kind kind) override;
    bool setFrame(QWindow &window, const QRectF &frame) override;
    void setCornerRadius(QWindow &window, qreal radius) override;
    [[nodiscard]] bool isComposited() const override { return m_isComposited; }

private:
    const Screens &m_screens;
    bool m_isComposited;
};

} // namespace vesk
