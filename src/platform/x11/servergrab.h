// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/x11connection.h"

namespace vesk {

/// While it exists, the server serves no other client: no window changes, and nobody else takes the keyboard
/// or sends keys. The user's own keys still arrive. Only for a few requests in a row, without any wait.
class ServerGrab final
{
public:
    explicit ServerGrab(X11Connection &connection)
        : m_connection(connection)
    {
        xcb_grab_server(connection.xcb());
    }
    ~ServerGrab()
    {
        xcb_ungrab_server(m_connection.xcb());
        m_connection.flush();
    }
    Q_DISABLE_COPY_MOVE(ServerGrab)

private:
    X11Connection &m_connection;
};

} // namespace vesk
