// SPDX-License-Identifier: MIT
#pragma once

#include "platform/eventtap.h"

#include <QHash>

#include <xcb/xcb.h>

namespace vesk {

class RawInput;

/// The keyboard as raw input tells it. Silent while the user has not agreed that Vesk listens.
class X11EventTap final : public EventTap
{
    Q_OBJECT

public:
    explicit X11EventTap(RawInput &input);

    bool start() override;
    [[nodiscard]] bool isKeyboardTaken() const override;

private:
    void onKeyPressed(xcb_keycode_t key, xcb_timestamp_t time);
    void onKeyReleased(xcb_keycode_t key, xcb_timestamp_t time);
    void onListeningChanged();
    void tellFlags(xcb_timestamp_t time);

    RawInput &m_input;
    bool m_isStarted = false;
    /// What is held, and what it meant when it went down: the layout may change before it goes up.
    QHash<xcb_keycode_t, Qt::KeyboardModifiers> m_held;
    /// The server's time of the last change, and the same since the tap was made: the server's wraps.
    xcb_timestamp_t m_serverTime = 0;
    std::chrono::milliseconds m_time{0};
};

} // namespace vesk
