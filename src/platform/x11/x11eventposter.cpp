// SPDX-License-Identifier: MIT
#include "platform/x11/x11eventposter.h"

#include "platform/accessibility.h"
#include "platform/clock.h"
#include "platform/logging.h"
#include "platform/x11/keyboardhold.h"
#include "platform/x11/keystates.h"
#include "platform/x11/keytaker.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/servergrab.h"
#include "platform/x11/windowping.h"
#include "platform/x11/x11connection.h"
#include "platform/x11/x11workspace.h"

#include <QCoreApplication>
#include <QPointer>

namespace vesk {

namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr auto kLook = 10ms;
/// Nested and remote servers send repeats of a held key as releases and presses, so a key counts as up only
/// after being up for this long.
constexpr auto kUpFor = 50ms;
constexpr auto kCopyPatience = 700ms;
/// Only the user waits for a paste.
constexpr auto kPastePatience = 2s;
/// An application that takes longer to answer a ping is hanging.
constexpr auto kAnswer = 200ms;

} // namespace

X11EventPoster::X11EventPoster(const Needs &needs)
    : m_needs(needs)
    , m_keys(needs.connection, needs.input)
{
}

EventPoster::Target X11EventPoster::target()
{
    return static_cast<Target>(m_needs.workspace.windowOfEvent().value_or(XCB_WINDOW_NONE));
}

QCoro::Task<bool> X11EventPoster::post(Command command, Target target, std::function<bool()> isWanted)
{
    const QPointer<X11EventPoster> self(this);
    const Needs needs = m_needs;
    const auto window = static_cast<xcb_window_t>(target);
    // 0 for a program on another machine whose process here is unknown.
    const qint64 process = needs.workspace.processOf(window).value_or(0);
    if (target == Target::None || process == QCoreApplication::applicationPid())
        co_return false;
    const WindowIdentity identity = needs.workspace.identityOf(window, process);
    const auto keysyms = [&](const std::optional<QString> &role) {
        const DesktopEntry *entry = needs.workspace.entries().match(identity);
        return keysFor(command, keyTakerOf(identity, entry, role));
    };
    // No answer could make these programs ordinary, so do not ask them.
    if (keysyms(u"text"_s).isEmpty() && keysyms(u"terminal"_s).isEmpty())
        co_return false;
    std::optional<WindowPing> ping;
    // A hanging application would copy at some later time, over whatever the user has copied by then. A late
    // paste, on the other hand, is what the user wants.
    if (command == Command::Copy)
        ping.emplace(needs.connection, window);
    const Instant end =
        needs.clock.monotonic() + (command == Command::Copy ? Instant(kCopyPatience) : kPastePatience);
    while (co_await waitForLetters(end)) {
        if (ping) {
            const bool isAnswered = co_await waitForAnswer(*ping);
            if (!isAnswered)
                co_return false;
        }
        if (self.isNull())
            co_return false;
        // Asked last: the user may move to another part of the window at any time, but not without pressing a
        // key or a button.
        const xcb_timestamp_t lastPress = needs.input.lastPress();
        const std::optional<QString> role = co_await focusedRole(process);
        if (self.isNull() || !isWanted())
            co_return false;
        const Attempt attempt = tryToPost(keysyms(role), window, lastPress);
        if (attempt == Attempt::Early)
            continue;
        const bool isPosted = attempt == Attempt::Posted;
        qCDebug(x11Log) << (command == Command::Copy ? "copy" : "paste") << "keys posted:" << isPosted;
        co_return isPosted;
    }
    co_return false;
}

QCoro::Task<bool> X11EventPoster::waitForLetters(Instant end)
{
    const QPointer<X11EventPoster> self(this);
    Clock &clock = m_needs.clock;
    // If the modifiers are released while a letter is still down, the letter alone would be typed over the
    // selection.
    auto upSince = clock.monotonic();
    while (clock.monotonic() < end && !keepsPress()) {
        if (hasLetterDown())
            upSince = clock.monotonic();
        else if (clock.monotonic() - upSince >= kUpFor)
            co_return true;
        co_await clock.sleep(kLook);
        if (self.isNull())
            co_return false;
    }
    co_return false;
}

QCoro::Task<bool> X11EventPoster::waitForAnswer(WindowPing &ping)
{
    const QPointer<X11EventPoster> self(this);
    Clock &clock = m_needs.clock;
    const Instant start = clock.monotonic();
    while (!ping.isAnswered() && clock.monotonic() - start < kAnswer) {
        ping.ask();
        co_await clock.sleep(kLook);
        if (self.isNull())
            co_return false;
    }
    co_return ping.isAnswered();
}

QCoro::Task<std::optional<QString>> X11EventPoster::focusedRole(qint64 processIdentifier)
{
    Accessibility &accessibility = m_needs.accessibility;
    if (processIdentifier == 0)
        co_return std::nullopt;
    const std::optional<AccessibleElement> focused =
        co_await accessibility.copyElement(Accessibility::applicationElement(processIdentifier),
                                           Accessibility::ElementAttribute::FocusedElement);
    if (!focused || focused->address.isEmpty())
        co_return std::nullopt;
    co_return co_await accessibility.copyString(*focused, Accessibility::StringAttribute::Role);
}

bool X11EventPoster::isHolding() const
{
    return m_needs.hold && m_needs.hold->isQuiet();
}

bool X11EventPoster::keepsPress() const
{
    return m_needs.hold && m_needs.hold->keepsPress();
}

bool X11EventPoster::hasLetterDown() const
{
    // While the keyboard is held, the state that applications see is frozen.
    const KeyStates states = isHolding() ? heldKeys(m_needs.connection).all() : keysDown(m_needs.connection);
    for (size_t key = 0; key < states.size(); ++key) {
        if (states.test(key) && !m_needs.input.isModifier(static_cast<xcb_keycode_t>(key)))
            return true;
    }
    return false;
}

bool X11EventPoster::hasCommandModifierDown() const
{
    constexpr auto kCommand = Qt::MetaModifier | Qt::AltModifier | Qt::ControlModifier;
    const KeyStates states = heldKeys(m_needs.connection).all();
    for (size_t key = 0; key < states.size(); ++key) {
        if (states.test(key)
            && (m_needs.input.modifiers().modifiersOf(static_cast<xcb_keycode_t>(key)) & kCommand))
            return true;
    }
    return false;
}

bool X11EventPoster::hasInputFocus(xcb_window_t window) const
{
    xcb_connection_t *xcb = m_needs.connection.xcb();
    const XReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    xcb_window_t each = focus ? focus->focus : xcb_window_t{XCB_WINDOW_NONE};
    while (each != window && each > XCB_INPUT_FOCUS_POINTER_ROOT) {
        const XReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(xcb, xcb_query_tree(xcb, each), nullptr));
        each = tree ? tree->parent : xcb_window_t{XCB_WINDOW_NONE};
    }
    return each == window;
}

X11EventPoster::Attempt X11EventPoster::tryToPost(const QList<uint32_t> &keysyms, xcb_window_t window,
                                                  xcb_timestamp_t lastPress)
{
    // Keys meant for one window must not reach another, so nothing may change between the check and the keys.
    const ServerGrab grab(m_needs.connection);
    if (keysyms.isEmpty() || m_needs.workspace.isOvertaken(window)
        || m_needs.workspace.activeWindow() != window || !hasInputFocus(window))
        return Attempt::Refused;
    if (hasLetterDown() || m_needs.input.lastPress() != lastPress || m_needs.input.isKeyboardTaken()
        || !m_keys.canPlay())
        return Attempt::Early;
    // A user who continues typing is writing a note. If those letters were released now, they would replace
    // the selection.
    if (keepsPress())
        return Attempt::Refused;
    const bool isHeld = isHolding();
    const bool isPlayed = m_keys.play(keysyms, [this] {
        if (m_needs.hold)
            m_needs.hold->end();
    });
    // Hold the keys until the effect of ours is known. A user who still holds modifiers is not typing.
    if (isHeld && isPlayed && !hasCommandModifierDown())
        m_needs.hold->beginQuietly();
    return isPlayed ? Attempt::Posted : Attempt::Refused;
}

} // namespace vesk
