// SPDX-License-Identifier: MIT
#pragma once

#include "platform/windows.h"

#include <xcb/xcb.h>

namespace vesk {

class Screens;
class X11Connection;

/// Vesk's windows under an X11 window manager.
class X11Windows final : public Windows
{
    Q_OBJECT

public:
    X11Windows(X11Connection &connection, const Screens &screens);

    void prepare(QWindow &window, Kind kind) override;
    bool setFrame(QWindow &window, const QRectF &frame) override;
    void setCornerRadius(QWindow &window, qreal radius) override;
    [[nodiscard]] bool isComposited() const override { return m_isComposited; }

private:
    void onEvent(const xcb_generic_event_t *event);
    [[nodiscard]] bool hasCompositor() const;

    X11Connection &m_connection;
    const Screens &m_screens;
    bool m_isComposited = false;
};

} // namespace vesk
