// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/keystates.h"

#include <QList>
#include <QObject>
#include <QTimer>

#include <xcb/xcb.h>

#include <functional>
#include <optional>

namespace vesk {

class RawInput;
class X11Connection;

/// Sends a key combination with XTEST. Meanwhile it releases the user's modifiers, and presses them again
/// afterwards, so that they apply to what the user types next. Applications cannot tell these keys from the
/// user's; `RawInput` can, and does not report them.
class SyntheticKeys final : public QObject
{
    Q_OBJECT

public:
    SyntheticKeys(X11Connection &connection, RawInput &input);
    ~SyntheticKeys() override;

    /// Whether the held modifiers can be pressed again without side effects. Modifiers that switch the
    /// keyboard layout when held together would switch it again.
    [[nodiscard]] bool canPlay() const;

    /// Sends the keys with these keysyms, modifiers first. The server must be grabbed. Held-back keys must be
    /// released in `letGo`, which is called at the last moment: whatever the user presses after that may
    /// arrive before these keys. Returns false, with nothing sent, if the keyboard has no such key.
    bool play(const QList<uint32_t> &keysyms, const std::function<void()> &letGo = [] {});

private:
    using Keys = QList<xcb_keycode_t>;

    /// The key codes of the keysyms; nullopt if one is missing. If the user holds one of a modifier's keys,
    /// uses another of its keys that is not held, if there is one, because the user may release the first at
    /// any moment.
    [[nodiscard]] std::optional<Keys> codesOf(const QList<uint32_t> &keysyms, const KeyStates &down) const;
    void send(uint8_t type, xcb_keycode_t key);
    void lookAtLent();
    /// Releases lent keys that the user has released, and reports what was sent as our own.
    void returnLent();

    X11Connection &m_connection;
    RawInput &m_input;
    /// Keys that XTEST holds down on the user's behalf while the user holds them too.
    KeyStates m_lent;
    /// Runs while a key is lent, because the release of the user's own key does not release XTEST's.
    QTimer m_watch;
    /// The first and last request of a group sent together; nullopt if nothing was sent.
    std::optional<uint32_t> m_firstRequest;
    uint32_t m_lastRequest = 0;
};

} // namespace vesk
