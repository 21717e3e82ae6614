// SPDX-License-Identifier: MIT
#include "platform/x11/rawinput.h"

#include "platform/x11/x11connection.h"

#include <xcb/xinput.h>

namespace vesk {

RawInput::RawInput(X11Connection &connection)
    : m_connection(connection)
    , m_modifiers(connection)
{
    connect(&connection, &X11Connection::eventReceived, this, &RawInput::onEvent);
}

void RawInput::setListening(bool isListening)
{
    m_isListening = isListening;
    struct
    {
        xcb_input_event_mask_t header;
        uint32_t mask;
    } selection{
        .header = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1},
        .mask = 0,
    };
    if (isListening) {
        selection.mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE
                         | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
    } else {
        m_last = {};
        m_previous = {};
    }
    xcb_input_xi_select_events(m_connection.xcb(), m_connection.root(), 1, &selection.header);
    m_connection.flush();
    Q_EMIT listeningChanged();
}

bool RawInput::isCapsLocked() const
{
    const auto cookie = xcb_query_pointer(m_connection.xcb(), m_connection.root());
    const XReply<xcb_query_pointer_reply_t> reply(
        xcb_query_pointer_reply(m_connection.xcb(), cookie, nullptr));
    return reply && (reply->mask & XCB_MOD_MASK_LOCK) != 0;
}

bool RawInput::isKeyboardTaken() const
{
    // Asked for with a window that is not shown, the keyboard is never given, so nobody loses the focus.
    const auto cookie = xcb_grab_keyboard(m_connection.xcb(), 0, m_connection.window(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XReply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection.xcb(), cookie, nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

xcb_timestamp_t RawInput::lastPress() const
{
    const bool isHotKey = m_last.key == m_hotKey.key && m_last.time == m_hotKey.time;
    return isHotKey ? m_previous.time : m_last.time;
}

void RawInput::setHotKeyPress(xcb_keycode_t key, xcb_timestamp_t time)
{
    m_hotKey = {.key = key, .time = time};
}

void RawInput::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    const auto *generic = reinterpret_cast<const xcb_ge_generic_event_t *>(event);
    if (type != XCB_GE_GENERIC || generic->extension != m_connection.inputOpcode())
        return;
    if (generic->event_type == XCB_INPUT_RAW_BUTTON_PRESS) {
        const auto *button = reinterpret_cast<const xcb_input_raw_button_press_event_t *>(event);
        // Buttons above the third are the wheel and the like, which select nothing.
        constexpr uint32_t kLastSelecting = 3;
        if (button->detail <= kLastSelecting) {
            onPress({.key = 0, .time = button->time});
            Q_EMIT buttonPressed();
        } else {
            Q_EMIT wheelTurned();
        }
        return;
    }
    const auto *raw = reinterpret_cast<const xcb_input_raw_key_press_event_t *>(event);
    const auto key = static_cast<xcb_keycode_t>(raw->detail);
    if (generic->event_type == XCB_INPUT_RAW_KEY_PRESS) {
        if (!isModifier(key))
            onPress({.key = key, .time = raw->time});
        Q_EMIT keyPressed(key, raw->time);
    } else if (generic->event_type == XCB_INPUT_RAW_KEY_RELEASE) {
        Q_EMIT keyReleased(key, raw->time);
    }
}

void RawInput::onPress(Press press)
{
    // A hot key that follows a hot key must not bring the first one back as the last press.
    const bool wasHotKey = m_last.key == m_hotKey.key && m_last.time == m_hotKey.time;
    if (!wasHotKey)
        m_previous = m_last;
    m_last = press;
}

} // namespace vesk
