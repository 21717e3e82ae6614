// SPDX-License-Identifier: MIT
#pragma once

#include "platform/eventtap.h"

#include <QSet>

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

private:
    void onKeyPressed(xcb_keycode_t key);
    void onKeyReleased(xcb_keycode_t key);
    void tellFlags();

    RawInput &m_input;
    bool m_isStarted = false;
    QSet<xcb_keycode_t> m_modifiersDown;
};

} // namespace vesk
