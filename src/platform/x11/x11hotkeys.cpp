// SPDX-License-Identifier: MIT
#include "platform/x11/x11hotkeys.h"

#include "platform/logging.h"
#include "platform/x11/grabholders.h"
#include "platform/x11/keystates.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11connection.h"

#include <algorithm>

namespace vesk {

namespace {

/// A key that is down again this soon was held: the server repeats a grabbed key, and nested servers repeat
/// any key, as a release and a press at the same time. No finger is that fast.
constexpr int kRepetitionMilliseconds = 2;

/// X reserves the first 8 key codes.
xcb_keycode_t keyCodeOf(KeyPosition key)
{
    return static_cast<xcb_keycode_t>(static_cast<unsigned>(key) + 8);
}

/// Every subset of these bits, including the empty one and all of them.
QList<uint8_t> subsetsOf(uint8_t bits)
{
    QList<uint8_t> subsets;
    unsigned subset = bits;
    while (true) {
        subsets.append(static_cast<uint8_t>(subset));
        if (subset == 0)
            return subsets;
        subset = (subset - 1) & bits;
    }
}

} // namespace

X11HotKeys::X11HotKeys(X11Connection &connection, RawInput &input)
    : m_connection(connection)
    , m_input(input)
    , m_letters(connection)
    , m_lockBits(input.modifiers().lockBits())
{
    connect(&connection, &X11Connection::eventReceived, this, &X11HotKeys::onEvent);
    connect(&input, &RawInput::keyReleased, this, &X11HotKeys::onKeyReleased);
    connect(&input.modifiers(), &ModifierMap::changed, this, &X11HotKeys::renewGrabs);
    // Reported only once the grabs have been renewed for the current modifiers.
    connect(&input.modifiers(), &ModifierMap::keyboardChanged, this, [this] {
        m_letters.forget();
        Q_EMIT layoutChanged();
    });
    // The release of a key may no longer be reported.
    connect(&input, &RawInput::listeningChanged, this, [this] {
        endGuard();
        m_held = {};
    });
}

bool X11HotKeys::registerHotKey(quint32 id, KeyCombination combination)
{
    const Grab wanted = grabFor(combination);
    if (m_registrations.value(id).grab == wanted)
        return true;
    unregisterHotKey(id);
    const std::optional<Grab> grab = tryGrab(wanted);
    if (!grab)
        return false;
    m_registrations.insert(id, {.combination = combination, .grab = grab});
    return true;
}

void X11HotKeys::unregisterHotKey(quint32 id)
{
    const std::optional<Grab> grab = m_registrations.take(id).grab;
    if (grab)
        ungrab(*grab);
}

std::optional<KeyPosition> X11HotKeys::findKey(QChar character) const
{
    return m_letters.findKey(character);
}

QChar X11HotKeys::characterOn(KeyPosition key) const
{
    return m_letters.characterOn(key);
}

QStringList X11HotKeys::otherHolders() const
{
    return grabHolders(m_connection);
}

X11HotKeys::Grab X11HotKeys::grabFor(KeyCombination combination) const
{
    return {.key = keyCodeOf(combination.key),
            .modifiers = m_input.modifiers().bitsOf(combination.modifiers)};
}

std::optional<X11HotKeys::Grab> X11HotKeys::tryGrab(Grab grab)
{
    QList<xcb_void_cookie_t> cookies;
    for (const uint16_t modifiers : withLocks(grab.modifiers)) {
        cookies.append(xcb_grab_key_checked(m_connection.xcb(), 1, m_connection.root(), modifiers, grab.key,
                                            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC));
    }
    bool isFree = true;
    for (const xcb_void_cookie_t cookie : std::as_const(cookies)) {
        const XReply<xcb_generic_error_t> error(xcb_request_check(m_connection.xcb(), cookie));
        isFree = isFree && !error;
    }
    if (isFree)
        return grab;
    // Some lock states may have been free, but a key that works only sometimes is worse than none.
    ungrab(grab);
    return std::nullopt;
}

void X11HotKeys::ungrab(Grab grab)
{
    for (const uint16_t modifiers : withLocks(grab.modifiers))
        xcb_ungrab_key(m_connection.xcb(), grab.key, m_connection.root(), modifiers);
    m_connection.flush();
}

void X11HotKeys::renewGrabs()
{
    endGuard();
    // Keep grabs that do not change, so that no press is missed now. Release the others before grabbing any
    // again: two may have swapped places.
    const bool areLocksMoved = m_lockBits != m_input.modifiers().lockBits();
    for (Registration &each : m_registrations) {
        if (each.grab && (areLocksMoved || each.grab != grabFor(each.combination))) {
            ungrab(*each.grab);
            each.grab.reset();
        }
    }
    m_lockBits = m_input.modifiers().lockBits();
    for (Registration &each : m_registrations) {
        if (!each.grab)
            each.grab = tryGrab(grabFor(each.combination));
    }
}

QList<uint16_t> X11HotKeys::withLocks(uint8_t modifiers) const
{
    QList<uint16_t> all;
    for (const uint8_t locks : subsetsOf(m_lockBits))
        all.append(static_cast<uint16_t>(modifiers | locks));
    return all;
}

void X11HotKeys::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    const auto &key = *reinterpret_cast<const xcb_key_press_event_t *>(event);
    if (type == XCB_KEY_PRESS) {
        onPress(key);
    } else if (type == XCB_KEY_RELEASE && key.detail == m_held.key) {
        recordRelease(key.detail, key.time);
        // A repeated key only appears to be released; this one may really be released before the grab is
        // given back.
        if (!m_guards.isEmpty() && !keysDown(m_connection).test(m_held.key))
            endGuard();
    }
}

void X11HotKeys::onPress(const xcb_key_press_event_t &press)
{
    if (m_input.isListening()) {
        // While the grab lasts, toolkits believe that they have lost the focus and hide their selection from
        // the accessibility bus.
        xcb_ungrab_keyboard(m_connection.xcb(), press.time);
        m_connection.flush();
    }
    // A press that the server held back arrives later than its own release, which raw input reports at once.
    QList<xcb_timestamp_t> &releases = m_releases[press.detail];
    const bool isRepetition =
        press.detail == m_held.key && std::ranges::none_of(releases, [&press](xcb_timestamp_t time) {
            return isAtOrAfter(press.time, time + kRepetitionMilliseconds);
        });
    releases.removeIf([&press](xcb_timestamp_t time) { return isAtOrAfter(press.time, time); });
    if (isRepetition) {
        // A key held this long may well outlast its modifiers, and the next repeat may arrive before we learn
        // that one of them was released.
        guardHeldKey();
        return;
    }
    // The upper half of the state describes the mouse buttons and the active layout.
    const Grab pressedGrab{.key = press.detail,
                           .modifiers = static_cast<uint8_t>(press.state & 0xffU & ~unsigned{m_lockBits})};
    endGuard();
    for (auto each = m_registrations.cbegin(); each != m_registrations.cend(); ++each) {
        if (each->grab != pressedGrab)
            continue;
        const quint32 id = each.key();
        m_held = pressedGrab;
        m_connection.setUserTime(press.time);
        qCDebug(x11Log) << "hot key" << id << "pressed at server time" << press.time;
        Q_EMIT pressed(id);
        return;
    }
}

void X11HotKeys::onKeyReleased(xcb_keycode_t key, xcb_timestamp_t time)
{
    recordRelease(key, time);
    if (key == m_held.key) {
        endGuard();
        return;
    }
    const bool isDown = m_held.key != 0 && m_releases.value(m_held.key).isEmpty();
    const uint8_t bits = m_input.modifiers().bitsOf(m_input.modifiers().modifiersOf(key));
    if (isDown && (bits & m_held.modifiers) != 0)
        guardHeldKey();
}

void X11HotKeys::recordRelease(xcb_keycode_t key, xcb_timestamp_t time)
{
    // Only the first and the last one decide anything.
    QList<xcb_timestamp_t> &releases = m_releases[key];
    releases.resize(std::min(releases.size(), qsizetype{1}));
    releases.append(time);
}

void X11HotKeys::guardHeldKey()
{
    // The grab that was not given back lasts until the key is released.
    if (!m_input.isListening() || !m_guards.isEmpty())
        return;
    // Users release the modifiers first as often as last, and the server repeats the letter meanwhile: it
    // would be typed over the selection. This is not done from the press on, because the letter alone belongs
    // to the application as soon as it is up. Combinations that others have grabbed stay theirs.
    for (const uint8_t modifiers : subsetsOf(m_held.modifiers)) {
        const Grab guard{.key = m_held.key, .modifiers = modifiers};
        const bool isOwn = std::ranges::any_of(
            m_registrations, [&guard](const Registration &each) { return each.grab == guard; });
        if (isOwn)
            continue;
        for (const uint16_t withLock : withLocks(modifiers)) {
            xcb_grab_key(m_connection.xcb(), 1, m_connection.root(), withLock, guard.key, XCB_GRAB_MODE_ASYNC,
                         XCB_GRAB_MODE_ASYNC);
        }
        m_guards.append(guard);
    }
    m_connection.flush();
}

void X11HotKeys::endGuard()
{
    for (const Grab guard : std::as_const(m_guards))
        ungrab(guard);
    m_guards.clear();
}

} // namespace vesk
