// SPDX-License-Identifier: MIT
#include "virtualdesktop/pointer.h"

#include <thread>
#include <xcb/xtest.h>

namespace vesk {

namespace {

constexpr std::chrono::milliseconds kFinger{20};

} // namespace

Pointer::Pointer(DisplayConnection &display)
    : m_display(display)
{
}

void Pointer::moveTo(QPoint place)
{
    xcb_test_fake_input(m_display.xcb(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, m_display.root(),
                        qint16(place.x()), qint16(place.y()), 0);
    xcb_flush(m_display.xcb());
}

void Pointer::drag(QPoint from, QPoint to)
{
    constexpr int kSteps = 20;
    moveTo(from);
    button(XCB_BUTTON_PRESS);
    for (int step = 1; step <= kSteps; ++step) {
        moveTo(from + (to - from) * step / kSteps);
        std::this_thread::sleep_for(kFinger);
    }
    button(XCB_BUTTON_RELEASE);
}

void Pointer::click(QPoint place, int times)
{
    moveTo(place);
    for (int click = 0; click < times; ++click) {
        button(XCB_BUTTON_PRESS);
        button(XCB_BUTTON_RELEASE);
    }
}

bool Pointer::isTaken() const
{
    // The server never grants a grab for an unmapped window.
    xcb_connection_t *xcb = m_display.xcb();
    const auto cookie =
        xcb_grab_pointer(xcb, 0, m_display.window(), 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                         XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME);
    const Reply<xcb_grab_pointer_reply_t> reply{xcb_grab_pointer_reply(xcb, cookie, nullptr)};
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

void Pointer::middleClick(QPoint place)
{
    moveTo(place);
    button(XCB_BUTTON_PRESS, kMiddleButton);
    button(XCB_BUTTON_RELEASE, kMiddleButton);
}

void Pointer::button(quint8 type, quint8 number)
{
    xcb_test_fake_input(m_display.xcb(), type, number, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
    xcb_flush(m_display.xcb());
    std::this_thread::sleep_for(kFinger);
}

} // namespace vesk
