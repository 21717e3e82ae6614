// SPDX-License-Identifier: MIT
#pragma once

#include "platform/eventtap.h"

#include <QHash>

#include <xcb/xcb.h>

namespace vesk {

class RawInput;

/// Reports the keyboard from raw input. Silent unless the user has agreed to it.
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
    /// The held modifier keys, with their meaning when they were pressed: the layout may change before they
    /// are released.
    QHash<xcb_keycode_t, Qt::KeyboardModifiers> m_held;
    /// The server time of the last change, which wraps, and the same without wrapping.
    xcb_timestamp_t m_serverTime = 0;
    std::chrono::milliseconds m_time{0};
};

} // namespace vesk
