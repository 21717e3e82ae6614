// SPDX-License-Identifier: MIT
#include "platform/x11/synthetickeys.h"

#include "platform/x11/rawinput.h"
#include "platform/x11/servergrab.h"
#include "platform/x11/x11connection.h"

#include <xcb/xtest.h>

#include <algorithm>
#include <ranges>
#include <span>

namespace vesk {

namespace {

constexpr std::chrono::milliseconds kLook{20};

/// Which keys have which keysyms.
class KeyboardMapping final
{
public:
    explicit KeyboardMapping(const X11Connection &connection)
        : m_firstKey(xcb_get_setup(connection.xcb())->min_keycode)
    {
        const auto count =
            static_cast<uint8_t>(xcb_get_setup(connection.xcb())->max_keycode - m_firstKey + 1);
        const auto cookie = xcb_get_keyboard_mapping(connection.xcb(), m_firstKey, count);
        m_reply.reset(xcb_get_keyboard_mapping_reply(connection.xcb(), cookie, nullptr));
        if (m_reply)
            m_keysyms = {xcb_get_keyboard_mapping_keysyms(m_reply.get()),
                         static_cast<size_t>(xcb_get_keyboard_mapping_keysyms_length(m_reply.get()))};
    }

    /// 0 if the keyboard has no such key.
    [[nodiscard]] xcb_keycode_t keyOf(uint32_t keysym) const
    {
        // Search the first column first: a layout may have the letter again on a higher level.
        for (size_t column = 0; column < width(); ++column) {
            for (size_t at = column; at < m_keysyms.size(); at += width()) {
                if (m_keysyms[at] == keysym)
                    return static_cast<xcb_keycode_t>(m_firstKey + at / width());
            }
        }
        return 0;
    }

    /// A key without a keysym; 0 if there is none.
    [[nodiscard]] xcb_keycode_t meaninglessKey() const
    {
        for (size_t at = 0; at < m_keysyms.size(); at += width()) {
            if (std::ranges::all_of(m_keysyms.subspan(at, width()), [](auto keysym) { return keysym == 0; }))
                return static_cast<xcb_keycode_t>(m_firstKey + at / width());
        }
        return 0;
    }

private:
    [[nodiscard]] size_t width() const { return m_reply ? m_reply->keysyms_per_keycode : 0; }

    xcb_keycode_t m_firstKey;
    XReply<xcb_get_keyboard_mapping_reply_t> m_reply;
    std::span<const xcb_keysym_t> m_keysyms;
};

QList<xcb_keycode_t> keysIn(const KeyStates &states)
{
    QList<xcb_keycode_t> keys;
    for (size_t key = 0; key < states.size(); ++key) {
        if (states.test(key))
            keys.append(static_cast<xcb_keycode_t>(key));
    }
    return keys;
}

} // namespace

SyntheticKeys::SyntheticKeys(X11Connection &connection, RawInput &input)
    : m_connection(connection)
    , m_input(input)
{
    m_watch.setInterval(kLook);
    connect(&m_watch, &QTimer::timeout, this, &SyntheticKeys::lookAtLent);
}

SyntheticKeys::~SyntheticKeys()
{
    // XTEST's device would hold them down forever.
    for (const xcb_keycode_t key : keysIn(m_lent))
        send(XCB_KEY_RELEASE, key);
    m_connection.flush();
}

bool SyntheticKeys::canPlay() const
{
    const ModifierMap &modifiers = m_input.modifiers();
    const KeyStates down = heldKeys(m_connection).all();
    Qt::KeyboardModifiers held;
    for (const xcb_keycode_t key : keysIn(down))
        held |= modifiers.modifiersOf(key);
    return std::ranges::none_of(keysIn(down), [&](xcb_keycode_t key) {
        const Qt::KeyboardModifiers others = held & ~modifiers.modifiersOf(key);
        constexpr Qt::KeyboardModifiers kSwitching =
            Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
        return modifiers.isLayoutSwitch(key) && (others & kSwitching);
    });
}

bool SyntheticKeys::play(const QList<uint32_t> &keysyms, const std::function<void()> &letGo)
{
    const ModifierMap &modifiers = m_input.modifiers();
    const HeldKeys before = heldKeys(m_connection);
    const KeyStates down = keysDown(m_connection) | before.all();
    const std::optional<Keys> codes = codesOf(keysyms, down);
    if (!codes)
        return false;
    // Any additional modifier would turn it into another command. Pressing a lock key again would toggle the
    // lock.
    Keys lifted = keysIn(down);
    lifted.removeIf([&](xcb_keycode_t key) { return !modifiers.isModifier(key) || modifiers.isLock(key); });
    const xcb_keycode_t filler = KeyboardMapping(m_connection).meaninglessKey();
    letGo();
    for (const xcb_keycode_t key : std::as_const(lifted))
        send(XCB_KEY_RELEASE, key);
    for (const xcb_keycode_t key : *codes)
        send(XCB_KEY_PRESS, key);
    for (const xcb_keycode_t key : *codes | std::views::reverse)
        send(XCB_KEY_RELEASE, key);
    const KeyStates byOthers = before.byPrograms & ~m_lent;
    m_lent.reset();
    bool isAnyBack = false;
    for (const xcb_keycode_t key : std::as_const(lifted)) {
        if (!before.byUser.test(key) && !byOthers.test(key))
            continue;
        send(XCB_KEY_PRESS, key);
        isAnyBack = true;
        m_lent.set(key, !byOthers.test(key));
    }
    // Desktops and menu bars react when Super or Alt is pressed and released with no key in between.
    if (isAnyBack && filler != 0) {
        send(XCB_KEY_PRESS, filler);
        send(XCB_KEY_RELEASE, filler);
    }
    // The user may have released a key between the query and its answer.
    returnLent();
    return true;
}

void SyntheticKeys::lookAtLent()
{
    if ((m_lent & ~heldKeys(m_connection).byUser).none())
        return;
    // So that no other program's keys come between ours.
    const ServerGrab grab(m_connection);
    returnLent();
}

void SyntheticKeys::returnLent()
{
    const HeldKeys held = heldKeys(m_connection);
    for (const xcb_keycode_t key : keysIn(m_lent & ~held.byUser)) {
        send(XCB_KEY_RELEASE, key);
        m_lent.reset(key);
    }
    if (m_firstRequest)
        m_input.ignoreRequests(held.programsDevice, *m_firstRequest, m_lastRequest);
    m_firstRequest.reset();
    m_connection.flush();
    if (m_lent.any())
        m_watch.start();
    else
        m_watch.stop();
}

std::optional<SyntheticKeys::Keys> SyntheticKeys::codesOf(const QList<uint32_t> &keysyms,
                                                          const KeyStates &down) const
{
    const KeyboardMapping mapping(m_connection);
    Keys codes;
    for (const uint32_t keysym : keysyms) {
        xcb_keycode_t code = mapping.keyOf(keysym);
        // The modifiers' keysyms come in pairs, left before right.
        if (down.test(code) && m_input.isModifier(code)) {
            const xcb_keycode_t other = mapping.keyOf(keysym + 1);
            const bool isSame =
                m_input.modifiers().modifiersOf(other) == m_input.modifiers().modifiersOf(code);
            if (other != 0 && isSame && !down.test(other))
                code = other;
        }
        if (code == 0)
            return std::nullopt;
        codes.append(code);
    }
    return codes;
}

void SyntheticKeys::send(uint8_t type, xcb_keycode_t key)
{
    const auto cookie =
        xcb_test_fake_input(m_connection.xcb(), type, key, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    if (!m_firstRequest)
        m_firstRequest = cookie.sequence;
    m_lastRequest = cookie.sequence;
}

} // namespace vesk
