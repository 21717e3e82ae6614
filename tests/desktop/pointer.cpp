// SPDX-License-Identifier: MIT
#include "desktop/pointer.h"

#include <thread>
#include <xcb/xtest.h>

namespace vesk {

Pointer::Pointer(DisplayConnection &display)
    : m_display(display)
{
}

void Pointer::click(QPoint place, int times)
{
    constexpr quint8 kLeftButton = 1;
    constexpr std::chrono::milliseconds kFinger{20};
    xcb_connection_t *xcb = m_display.xcb();
    xcb_test_fake_input(xcb, XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, m_display.root(), qint16(place.x()),
                        qint16(place.y()), 0);
    for (int click = 0; click < times; ++click) {
        for (const quint8 type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE}) {
            xcb_test_fake_input(xcb, type, kLeftButton, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
            xcb_flush(xcb);
            std::this_thread::sleep_for(kFinger);
        }
    }
}

} // namespace vesk
