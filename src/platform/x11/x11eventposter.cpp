// SPDX-License-Identifier: MIT
#include "platform/x11/x11eventposter.h"

#include "platform/clock.h"
#include "platform/x11/keystates.h"
#include "platform/x11/keytaker.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/windowping.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11workspace.h"

#include <QCoreApplication>
#include <QPointer>

#include <xcb/xtest.h>

#include <ranges>

namespace vesk {

namespace {

using namespace std::chrono_literals;

constexpr auto kLook = 10ms;
/// Nested and remote servers send a held key's repetitions as releases and presses, so a key counts as
/// up only after it was up for so long.
constexpr auto kUpFor = 50ms;
constexpr auto kPatience = 700ms;
/// An application that takes longer to say that it is there hangs.
constexpr auto kAnswer = 200ms;

} // namespace

X11EventPoster::X11EventPoster(X11Connection &connection, RawInput &input, X11Workspace &workspace,
                               Clock &clock)
    : m_connection(connection)
    , m_input(input)
    , m_workspace(workspace)
    , m_clock(clock)
{
}

QCoro::Task<bool> X11EventPoster::post(Command command, std::function<bool()> isWanted)
{
    const QPointer<X11EventPoster> self(this);
    const std::optional<xcb_window_t> window = m_workspace.activeWindow();
    if (!window)
        co_return false;
    std::optional<WindowPing> ping;
    // An application that hangs would copy at any later time, over what the user has copied by then. To
    // paste late is what the user wants.
    if (command == Command::Copy)
        ping.emplace(m_connection, *window);
    const bool areUp = co_await waitForLetters();
    if (self.isNull() || !areUp)
        co_return false;
    const auto up = m_clock.monotonic();
    while (!self.isNull() && ping && !ping->isAnswered() && m_clock.monotonic() - up < kAnswer) {
        ping->ask();
        co_await m_clock.sleep(kLook);
    }
    const bool hangs = ping && !ping->isAnswered();
    // Keys that were meant for one window must not reach another.
    if (self.isNull() || hangs || m_workspace.activeWindow() != window || !isWanted())
        co_return false;
    co_return postToActiveWindow(command);
}

QCoro::Task<bool> X11EventPoster::waitForLetters()
{
    const QPointer<X11EventPoster> self(this);
    // Modifiers that are let go of while a letter is still down would leave the letter alone, to be
    // typed over the selection.
    const auto start = m_clock.monotonic();
    auto upSince = start;
    while (m_clock.monotonic() - start < kPatience) {
        if (hasLetterDown())
            upSince = m_clock.monotonic();
        else if (m_clock.monotonic() - upSince >= kUpFor)
            co_return true;
        co_await m_clock.sleep(kLook);
        if (self.isNull())
            co_return false;
    }
    co_return false;
}

bool X11EventPoster::hasLetterDown() const
{
    const KeyStates states = keysDown(m_connection);
    for (size_t key = 0; key < states.size(); ++key) {
        if (states.test(key) && !m_input.isModifier(static_cast<xcb_keycode_t>(key)))
            return true;
    }
    return false;
}

bool X11EventPoster::postToActiveWindow(Command command)
{
    const std::optional<xcb_window_t> window = m_workspace.activeWindow();
    if (!window)
        return false;
    const std::optional<qint64> process = m_workspace.processOf(*window);
    if (!process || *process == QCoreApplication::applicationPid())
        return false;
    const WindowIdentity identity = m_workspace.identityOf(*window, *process);
    QList<xcb_keycode_t> keys;
    const QList<uint32_t> keysyms =
        keysFor(command, keyTakerOf(identity, m_workspace.entries().match(identity)));
    for (const uint32_t keysym : keysyms)
        keys.append(keyCodeOf(keysym));
    if (keys.isEmpty() || keys.contains(xcb_keycode_t{0}))
        return false;
    // Any further modifier would make another command of it. That the user still holds them does no
    // harm: their own release finds them up already.
    const KeyStates states = keysDown(m_connection);
    for (size_t key = 0; key < states.size(); ++key) {
        if (states.test(key) && m_input.isModifier(static_cast<xcb_keycode_t>(key)))
            sendKey(static_cast<xcb_keycode_t>(key), XCB_KEY_RELEASE);
    }
    for (const xcb_keycode_t key : std::as_const(keys))
        sendKey(key, XCB_KEY_PRESS);
    for (const xcb_keycode_t key : keys | std::views::reverse)
        sendKey(key, XCB_KEY_RELEASE);
    m_connection.flush();
    return true;
}

void X11EventPoster::sendKey(xcb_keycode_t key, uint8_t type)
{
    xcb_test_fake_input(m_connection.xcb(), type, key, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
}

xcb_keycode_t X11EventPoster::keyCodeOf(uint32_t keysym) const
{
    const xcb_setup_t *setup = xcb_get_setup(m_connection.xcb());
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto cookie = xcb_get_keyboard_mapping(m_connection.xcb(), setup->min_keycode, count);
    const XReply<xcb_get_keyboard_mapping_reply_t> reply(
        xcb_get_keyboard_mapping_reply(m_connection.xcb(), cookie, nullptr));
    if (!reply)
        return 0;
    const int perKey = reply->keysyms_per_keycode;
    const xcb_keysym_t *keysyms = xcb_get_keyboard_mapping_keysyms(reply.get());
    // The first column first: a layout may have the letter a second time behind a level.
    for (int column = 0; column < perKey; ++column) {
        for (int key = 0; key < count; ++key) {
            if (keysyms[key * perKey + column] == keysym)
                return static_cast<xcb_keycode_t>(setup->min_keycode + key);
        }
    }
    return 0;
}

} // namespace vesk
