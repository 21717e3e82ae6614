// SPDX-License-Identifier: MIT
#include "desktop/foreignwindow.h"

#include <poll.h>

namespace vesk {

ForeignWindow::ForeignWindow(const QString &displayName, std::optional<QByteArray> copies)
    : m_displayName(displayName)
    , m_text(std::move(copies))
    , m_display(DisplayConnection::open(displayName))
    , m_window(std::make_unique<PlainWindow>(*m_display, QStringLiteral("Foreign"), QRect(50, 50, 500, 300)))
{
    const quint32 keys = XCB_EVENT_MASK_KEY_PRESS;
    xcb_change_window_attributes(m_display->xcb(), window().id, XCB_CW_EVENT_MASK, &keys);
    constexpr QByteArrayView kClass("foreign\0Foreign", 16);
    xcb_change_property(m_display->xcb(), XCB_PROP_MODE_REPLACE, window().id, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, quint32(kClass.size()), kClass.data());
    m_window->show();
    m_thread = std::thread([this] { serve(); });
}

ForeignWindow::~ForeignWindow()
{
    m_isEnding = true;
    m_thread.join();
}

void ForeignWindow::serve()
{
    constexpr int kPollMilliseconds = 10;
    xcb_connection_t *xcb = m_display->xcb();
    while (!m_isEnding && !xcb_connection_has_error(xcb)) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(xcb)}) {
            if ((event->response_type & 0x7f) != XCB_KEY_PRESS)
                continue;
            const auto &press = reinterpret_cast<const xcb_key_press_event_t &>(*event);
            // A letter is a command only with Control and no other modifier.
            constexpr quint16 kModifiers =
                XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;
            if ((press.state & kModifiers) != XCB_MOD_MASK_CONTROL)
                continue;
            ++m_copies;
            if (m_text)
                m_clipboard = ClipboardHolder::hold(m_displayName, {{"UTF8_STRING", *m_text}});
        }
        pollfd descriptor = {xcb_get_file_descriptor(xcb), POLLIN, 0};
        poll(&descriptor, 1, kPollMilliseconds);
    }
}

} // namespace vesk
