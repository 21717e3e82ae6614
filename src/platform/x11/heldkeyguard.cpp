// SPDX-License-Identifier: MIT
#include "platform/x11/heldkeyguard.h"

#include "platform/x11/x11connection.h"

namespace vesk {

namespace {

/// The keys that the server repeats while they are held.
KeyStates repeatedKeys(const X11Connection &connection)
{
    const auto cookie = xcb_get_keyboard_control(connection.xcb());
    const XReply<xcb_get_keyboard_control_reply_t> reply(
        xcb_get_keyboard_control_reply(connection.xcb(), cookie, nullptr));
    KeyStates keys;
    for (size_t key = 0; reply && key < keys.size(); ++key)
        keys.set(key, (reply->auto_repeats[key / 8] & (1U << (key % 8))) != 0);
    return keys;
}

/// The current modifiers and locks, as a bit mask.
unsigned heldModifiers(const X11Connection &connection)
{
    const auto cookie = xcb_query_pointer(connection.xcb(), connection.root());
    const XReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(connection.xcb(), cookie, nullptr));
    constexpr unsigned kModifiers = 0xff;
    return reply ? reply->mask & kModifiers : 0U;
}

} // namespace

HeldKeyGuard::HeldKeyGuard(const X11Connection &connection)
    : m_connection(connection)
{
    constexpr std::chrono::milliseconds kLook{20};
    m_watch.setInterval(kLook);
    connect(&m_watch, &QTimer::timeout, this, &HeldKeyGuard::lookForReleases);
}

HeldKeyGuard::~HeldKeyGuard()
{
    end();
}

void HeldKeyGuard::begin()
{
    const KeyStates held = keysDown(m_connection) & repeatedKeys(m_connection) & ~m_guarded;
    if (held.none())
        return;
    if (!m_grabs)
        m_grabs = xcb_connect(nullptr, nullptr);
    const unsigned modifiers = heldModifiers(m_connection);
    for (size_t key = 0; key < held.size(); ++key) {
        if (held.test(key))
            grab(static_cast<xcb_keycode_t>(key), modifiers);
    }
    m_guarded |= held;
    m_looksWithout = 0;
    m_watch.start();
    // Wait until the server has processed the grabs before another connection asks it for anything.
    const XReply<xcb_get_input_focus_reply_t> answer(
        xcb_get_input_focus_reply(m_grabs, xcb_get_input_focus(m_grabs), nullptr));
}

void HeldKeyGuard::grab(xcb_keycode_t key, unsigned modifiers)
{
    // The modifiers may be released before the key. A grab for AnyModifier would fail if the desktop or Vesk
    // itself has grabbed the key with any one combination.
    for (unsigned subset = modifiers;; subset = (subset - 1) & modifiers) {
        xcb_grab_key(m_grabs, 0, m_connection.root(), static_cast<uint16_t>(subset), key, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
        if (subset == 0)
            return;
    }
}

void HeldKeyGuard::lookForReleases()
{
    // Drain the repeats, and the errors for combinations that others have grabbed.
    while (const XReply<xcb_generic_event_t> event{xcb_poll_for_event(m_grabs)}) {
    }
    // Nested and remote servers send repeats of a held key as releases and presses.
    constexpr int kUpFor = 3;
    const bool isAnyDown = (m_guarded & keysDown(m_connection)).any();
    m_looksWithout = isAnyDown ? 0 : m_looksWithout + 1;
    if (m_looksWithout >= kUpFor)
        end();
}

void HeldKeyGuard::end()
{
    m_watch.stop();
    m_guarded.reset();
    if (m_grabs)
        xcb_disconnect(m_grabs);
    m_grabs = nullptr;
}

} // namespace vesk
