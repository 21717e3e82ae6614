// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"

class QScreen;

namespace vesk {

/// The screens as Qt reads them from the server, and the window manager's work area.
class X11Screens final : public Screens
{
    Q_OBJECT

public:
    X11Screens();

    [[nodiscard]] QList<Screen> screens() const override;
    [[nodiscard]] std::optional<QPointF> mouseLocation() const override;
    [[nodiscard]] QRectF flipped(const QRectF &rectangle) const override;

private:
    void watch(QScreen *screen);
};

} // namespace vesk
