// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/desktoplooks.h"

#include <xcb/xcb.h>

namespace vesk {

class X11Connection;

/// The desktop's looks as its XSETTINGS manager tells them; says nothing while there is none.
class XSettings final : public QObject
{
    Q_OBJECT

public:
    explicit XSettings(X11Connection &connection);

    [[nodiscard]] const DesktopLooks &looks() const { return m_looks; }

Q_SIGNALS:
    void changed();

private:
    void onEvent(const xcb_generic_event_t *event);
    /// Finds who manages the settings now, and reads them.
    void follow();
    void read();

    X11Connection &m_connection;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
    DesktopLooks m_looks;
};

} // namespace vesk
