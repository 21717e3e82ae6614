// SPDX-License-Identifier: MIT
#include "platform/x11/x11hotkeys.h"

#include "platform/x11/rawinput.h"
#include "platform/x11/x11connection.h"

#include <array>

namespace vesk {

namespace {

/// Key codes of the positions: the kernel's codes of the letters that an ANSI keyboard has there,
/// plus the 8 that X reserves.
xcb_keycode_t keyCodeOf(KeyPosition key)
{
    switch (key) {
    case KeyPosition::T:
        return 28;
    case KeyPosition::C:
        return 54;
    case KeyPosition::N:
        break;
    }
    return 57;
}

uint16_t modifierMaskOf(Qt::KeyboardModifiers modifiers)
{
    unsigned mask = 0;
    if (modifiers & Qt::ShiftModifier)
        mask |= XCB_MOD_MASK_SHIFT;
    if (modifiers & Qt::ControlModifier)
        mask |= XCB_MOD_MASK_CONTROL;
    if (modifiers & Qt::AltModifier)
        mask |= XCB_MOD_MASK_1;
    if (modifiers & Qt::MetaModifier)
        mask |= XCB_MOD_MASK_4;
    return static_cast<uint16_t>(mask);
}

/// Caps Lock and Num Lock, which the server takes for parts of a combination.
constexpr std::array<uint16_t, 4> kLocks{0, XCB_MOD_MASK_LOCK, XCB_MOD_MASK_2,
                                         XCB_MOD_MASK_LOCK | XCB_MOD_MASK_2};

} // namespace

X11HotKeys::X11HotKeys(X11Connection &connection, RawInput &input)
    : m_connection(connection)
    , m_input(input)
{
    connect(&connection, &X11Connection::eventReceived, this, &X11HotKeys::onEvent);
    connect(&input, &RawInput::keyReleased, this, &X11HotKeys::onKeyReleased);
}

bool X11HotKeys::registerHotKey(quint32 id, KeyCombination combination)
{
    unregisterHotKey(id);
    const Grab wanted{.key = keyCodeOf(combination.key), .modifiers = modifierMaskOf(combination.modifiers)};
    if (!grab(wanted)) {
        // Some of the lock states may have been free; a key that works only at times is worse than none.
        ungrab(wanted);
        return false;
    }
    m_grabs.insert(id, wanted);
    return true;
}

void X11HotKeys::unregisterHotKey(quint32 id)
{
    const auto found = m_grabs.constFind(id);
    if (found == m_grabs.cend())
        return;
    ungrab(*found);
    m_grabs.erase(found);
}

bool X11HotKeys::grab(Grab grab)
{
    std::array<xcb_void_cookie_t, kLocks.size()> cookies{};
    for (size_t i = 0; i < kLocks.size(); ++i) {
        const auto modifiers = static_cast<uint16_t>(grab.modifiers | kLocks[i]);
        cookies[i] = xcb_grab_key_checked(m_connection.xcb(), 1, m_connection.root(), modifiers, grab.key,
                                          XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    }
    bool isFree = true;
    for (const xcb_void_cookie_t cookie : cookies) {
        const XReply<xcb_generic_error_t> error(xcb_request_check(m_connection.xcb(), cookie));
        isFree = isFree && !error;
    }
    return isFree;
}

void X11HotKeys::ungrab(Grab grab)
{
    for (const uint16_t locks : kLocks) {
        const auto modifiers = static_cast<uint16_t>(grab.modifiers | locks);
        xcb_ungrab_key(m_connection.xcb(), grab.key, m_connection.root(), modifiers);
    }
    m_connection.flush();
}

void X11HotKeys::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    const auto &key = *reinterpret_cast<const xcb_key_press_event_t *>(event);
    if (type == XCB_KEY_PRESS)
        onPress(key);
    else if (type == XCB_KEY_RELEASE && key.detail == m_heldKey)
        m_releaseTime = key.time;
}

void X11HotKeys::onPress(const xcb_key_press_event_t &press)
{
    if (m_input.isListening()) {
        // While the grab holds, toolkits believe that they have lost the focus and hide their selection
        // from the accessibility bus.
        xcb_ungrab_keyboard(m_connection.xcb(), press.time);
        m_connection.flush();
        m_input.setHotKeyPress(press.detail, press.time);
    }
    const bool isRepetition = press.detail == m_heldKey && (!m_releaseTime || *m_releaseTime == press.time);
    m_releaseTime.reset();
    if (isRepetition)
        return;
    constexpr unsigned kCounted = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1 | XCB_MOD_MASK_4;
    const unsigned modifiers = press.state & kCounted;
    for (auto grab = m_grabs.cbegin(); grab != m_grabs.cend(); ++grab) {
        if (grab->key != press.detail || grab->modifiers != modifiers)
            continue;
        m_heldKey = press.detail;
        m_connection.setUserTime(press.time);
        Q_EMIT pressed(grab.key());
        return;
    }
}

void X11HotKeys::onKeyReleased(xcb_keycode_t key)
{
    if (key == m_heldKey)
        m_heldKey = 0;
}

} // namespace vesk
