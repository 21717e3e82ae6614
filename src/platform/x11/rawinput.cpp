// SPDX-License-Identifier: MIT
#include "platform/x11/rawinput.h"

#include "platform/x11/x11connection.h"

#include <algorithm>
#include <array>

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
    struct Selection
    {
        xcb_input_event_mask_t header;
        uint32_t mask;
    };
    std::array<Selection, 2> selections{{
        {.header = {.deviceid = XCB_INPUT_DEVICE_ALL, .mask_len = 1}, .mask = 0},
        {.header = {.deviceid = XCB_INPUT_DEVICE_ALL_MASTER, .mask_len = 1}, .mask = 0},
    }};
    if (isListening) {
        selections.front().mask = XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS
                                  | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE
                                  | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
        selections.back().mask = XCB_INPUT_XI_EVENT_MASK_FOCUS_IN | XCB_INPUT_XI_EVENT_MASK_FOCUS_OUT;
    } else {
        forget();
    }
    xcb_input_xi_select_events(m_connection.xcb(), m_connection.root(), selections.size(),
                               &selections.front().header);
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
    // The server never grants a grab for an unmapped window, so nobody loses the focus.
    const auto cookie = xcb_grab_keyboard(m_connection.xcb(), 0, m_connection.window(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XReply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection.xcb(), cookie, nullptr));
    return reply
           && (reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED || reply->status == XCB_GRAB_STATUS_FROZEN);
}

void RawInput::ignoreRequests(xcb_input_device_id_t device, uint32_t first, uint32_t last)
{
    if (m_isListening)
        m_ownRequests.append({.device = device, .first = first, .last = last});
}

void RawInput::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    const auto *generic = reinterpret_cast<const xcb_ge_generic_event_t *>(event);
    if (type != XCB_GE_GENERIC || generic->extension != m_connection.inputOpcode())
        return;
    const auto &raw = *reinterpret_cast<const xcb_input_raw_key_press_event_t *>(event);
    const auto &focus = *reinterpret_cast<const xcb_input_focus_in_event_t *>(event);
    // Listen to the keyboards and mice themselves: the master device that unites them reports nothing while
    // it is grabbed.
    const bool isOfMaster = raw.deviceid != raw.sourceid;
    switch (generic->event_type) {
    case XCB_INPUT_RAW_BUTTON_PRESS:
        if (!isOfMaster)
            onButton(raw.detail, raw.time);
        break;
    case XCB_INPUT_RAW_KEY_PRESS:
    case XCB_INPUT_RAW_KEY_RELEASE:
        if (!isOfMaster && !isOwn(raw))
            onKey(generic->event_type == XCB_INPUT_RAW_KEY_PRESS, static_cast<xcb_keycode_t>(raw.detail),
                  raw.time);
        break;
    case XCB_INPUT_FOCUS_IN:
    case XCB_INPUT_FOCUS_OUT:
        onRootFocus(generic->event_type == XCB_INPUT_FOCUS_IN, focus.mode);
        break;
    default:
        break;
    }
}

void RawInput::onButton(uint32_t button, xcb_timestamp_t time)
{
    // Buttons above the third are the wheel and the like, which select nothing.
    constexpr uint32_t kLastSelecting = 3;
    if (button > kLastSelecting) {
        Q_EMIT wheelTurned();
        return;
    }
    m_lastPress = time;
    m_beforeKey.reset();
    Q_EMIT buttonPressed();
}

void RawInput::onKey(bool isPress, xcb_keycode_t key, xcb_timestamp_t time)
{
    m_down.set(key, isPress);
    m_beforeKey.reset();
    // The end of a grab is not reported while the root window itself has the focus.
    m_isRootGrabbed = m_isRootGrabbed && isKeyboardTaken();
    if (!isPress) {
        Q_EMIT keyReleased(key, time);
        return;
    }
    if (canChangeSelection(key)) {
        m_beforeKey = m_lastPress;
        m_lastPress = time;
    }
    Q_EMIT keyPressed(key, time);
}

void RawInput::onRootFocus(bool isIn, uint8_t mode)
{
    const bool isGrab = mode == XCB_INPUT_NOTIFY_MODE_GRAB || mode == XCB_INPUT_NOTIFY_MODE_PASSIVE_GRAB;
    const bool isUngrab =
        mode == XCB_INPUT_NOTIFY_MODE_UNGRAB || mode == XCB_INPUT_NOTIFY_MODE_PASSIVE_UNGRAB;
    if (!isGrab && !isUngrab)
        return;
    m_isRootGrabbed = isGrab && isIn;
    // The server reports the press first, and then the grab that the press has activated.
    if (m_isRootGrabbed && m_beforeKey)
        m_lastPress = *m_beforeKey;
    m_beforeKey.reset();
}

bool RawInput::isOwn(const xcb_input_raw_key_press_event_t &event)
{
    // An event carries the number of our request that the server processed last. The numbers wrap.
    m_ownRequests.removeIf(
        [&event](const Requests &each) { return !isAtOrAfter(each.last, event.full_sequence); });
    return std::ranges::any_of(m_ownRequests, [&event](const Requests &each) {
        return each.device == event.sourceid && isAtOrAfter(event.full_sequence, each.first);
    });
}

bool RawInput::canChangeSelection(xcb_keycode_t key) const
{
    if (isModifier(key) || m_isRootGrabbed)
        return false;
    Qt::KeyboardModifiers held;
    for (size_t each = 0; each < m_down.size(); ++each) {
        if (m_down.test(each))
            held |= m_modifiers.modifiersOf(static_cast<xcb_keycode_t>(each));
    }
    return !held.testFlag(Qt::MetaModifier) && !held.testFlags(Qt::ControlModifier | Qt::AltModifier);
}

void RawInput::forget()
{
    m_ownRequests.clear();
    m_down.reset();
    m_lastPress = 0;
    m_beforeKey.reset();
    m_isRootGrabbed = false;
}

} // namespace vesk
