// SPDX-License-Identifier: MIT
#include "platform/x11/keyboardhold.h"

#include "platform/x11/keystates.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11connection.h"

namespace vesk {

KeyboardHold::KeyboardHold(X11Connection &connection, const RawInput &input)
    : m_connection(connection)
    , m_input(input)
{
    constexpr std::chrono::milliseconds kLimit{1500};
    m_limit.setSingleShot(true);
    m_limit.setInterval(kLimit);
    connect(&m_limit, &QTimer::timeout, this, &KeyboardHold::end);
    // Longer than asking the frontmost application takes, unless it does not answer.
    constexpr std::chrono::milliseconds kQuietLimit{700};
    m_quietLimit.setSingleShot(true);
    m_quietLimit.setInterval(kQuietLimit);
    connect(&m_quietLimit, &QTimer::timeout, this, &KeyboardHold::endQuiet);
    constexpr std::chrono::milliseconds kLook{20};
    m_releaseWatch.setInterval(kLook);
    connect(&m_releaseWatch, &QTimer::timeout, this, &KeyboardHold::lookForRelease);
    connect(&connection, &X11Connection::eventReceived, this, &KeyboardHold::onEvent);
}

void KeyboardHold::beginQuietly()
{
    if (m_isQuiet || m_isHolding)
        return;
    // A pointer grab can freeze the keyboard too, and no window is notified of a focus change.
    const auto cookie =
        xcb_grab_pointer(m_connection.xcb(), 0, m_connection.root(), 0, XCB_GRAB_MODE_SYNC,
                         XCB_GRAB_MODE_SYNC, XCB_WINDOW_NONE, XCB_CURSOR_NONE, XCB_CURRENT_TIME);
    const XReply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(m_connection.xcb(), cookie, nullptr));
    m_isQuiet = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    if (!m_isQuiet)
        return;
    m_pressBefore = m_input.lastPress();
    m_quietLimit.start();
}

bool KeyboardHold::keepsPress() const
{
    // A press that turns out to belong to the desktop is taken back, and the previous press counts as the
    // last one again.
    return m_isQuiet && m_input.lastPress() != m_pressBefore
           && isAtOrAfter(m_input.lastPress(), m_pressBefore);
}

void KeyboardHold::endQuiet()
{
    if (!m_isQuiet)
        return;
    m_isQuiet = false;
    m_quietLimit.stop();
    xcb_ungrab_pointer(m_connection.xcb(), XCB_CURRENT_TIME);
    m_connection.flush();
}

bool KeyboardHold::begin()
{
    if (m_isHolding)
        return true;
    // In synchronous mode the server holds the keys back until the grab ends.
    const auto cookie = xcb_grab_keyboard(m_connection.xcb(), 0, m_connection.root(), XCB_CURRENT_TIME,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC);
    const XReply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(m_connection.xcb(), cookie, nullptr));
    m_isHolding = reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
    if (m_isHolding)
        m_limit.start();
    // Only now: no key may slip through between the two.
    endQuiet();
    return m_isHolding;
}

void KeyboardHold::end()
{
    endQuiet();
    if (!m_isHolding)
        return;
    m_isHolding = false;
    m_limit.stop();
    xcb_ungrab_keyboard(m_connection.xcb(), XCB_CURRENT_TIME);
    m_connection.flush();
    lookForRelease();
}

void KeyboardHold::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    const auto key = reinterpret_cast<const xcb_key_press_event_t *>(event)->detail;
    if (type == XCB_KEY_PRESS) {
        m_pressedKey = key;
    } else if (type == XCB_KEY_RELEASE && key == m_pressedKey) {
        m_pressedKey = 0;
        m_releaseWatch.stop();
    }
}

void KeyboardHold::lookForRelease()
{
    if (m_pressedKey == 0)
        return;
    if (keysDown(m_connection).test(m_pressedKey)) {
        m_releaseWatch.start();
        return;
    }
    // The grab that has just ended would have reported the release.
    xcb_key_release_event_t release{};
    release.response_type = XCB_KEY_RELEASE;
    release.detail = m_pressedKey;
    release.time = m_connection.userTime();
    Q_EMIT m_connection.eventReceived(reinterpret_cast<const xcb_generic_event_t *>(&release));
}

} // namespace vesk
