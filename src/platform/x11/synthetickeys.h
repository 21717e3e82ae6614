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

/// Plays a key combination by XTEST while the user's own modifiers are lifted, and puts these back: what the
/// user types next comes with them. Applications cannot tell the keys from the user's; `RawInput` can, and
/// does not report them.
class SyntheticKeys final : public QObject
{
    Q_OBJECT

public:
    SyntheticKeys(X11Connection &connection, RawInput &input);
    ~SyntheticKeys() override;

    /// Whether the modifiers that are held can be put back with no further effect. Those that switch the
    /// keyboard's layout when they are held together would switch it once more.
    [[nodiscard]] bool canPlay() const;

    /// Plays the keys with these keysyms, modifiers first. The server must be grabbed. Keys that are held
    /// back must be let go of in `letGo`, which is called at the last moment: whatever the user presses
    /// from then on may come before the keys. Returns false, with nothing played, if the keyboard has no
    /// such key.
    bool play(
        const QList<uint32_t> &keysyms, const std::function<void()> &letGo = [] {});

private:
    using Keys = QList<xcb_keycode_t>;

    /// The codes of the keysyms; nullopt if one is missing. A modifier of which another key is held gets a
    /// key that nobody holds, if there is one: the user may let go at any moment.
    [[nodiscard]] std::optional<Keys> codesOf(const QList<uint32_t> &keysyms, const KeyStates &down) const;
    void send(uint8_t type, xcb_keycode_t key);
    void lookAtLent();
    /// Ends what is lent of keys that the user has let go of, and reports what was sent as our own.
    void returnLent();

    X11Connection &m_connection;
    RawInput &m_input;
    /// Keys that XTEST holds for the user, who holds them too.
    KeyStates m_lent;
    /// Runs while a key is lent: the release of the user's own key does not end what XTEST holds.
    QTimer m_watch;
    /// The first and last request of those that were sent together; nullopt if none was.
    std::optional<uint32_t> m_firstRequest;
    uint32_t m_lastRequest = 0;
};

} // namespace vesk
