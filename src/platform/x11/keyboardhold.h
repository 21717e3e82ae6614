// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <xcb/xcb.h>

namespace vesk {

class RawInput;
class X11Connection;

/// Keeps what is typed while one of Vesk's windows comes up for that window: the server delivers no key
/// until the window has the keyboard, and then all of them, in order. Ends by itself after a moment, in
/// case the window manager gives the keyboard to nobody.
class KeyboardHold final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive it.
    KeyboardHold(X11Connection &connection, const RawInput &input);

    /// Holds the keys in a way that no application notices: without a grab of the keyboard, of which
    /// toolkits think that it takes the focus away. The pointer's clicks are kept as well. Does nothing
    /// while another application has the pointer to itself, as with a menu open.
    void beginQuietly();
    /// Ends what `beginQuietly` began.
    void endQuiet();
    [[nodiscard]] bool isQuiet() const { return m_isQuiet; }
    /// Whether the user has pressed a key or a button that `beginQuietly` keeps from the application in
    /// front. False where the user's keys are not listened to.
    [[nodiscard]] bool keepsPress() const;
    /// Whether it holds now: not if another application has the keyboard to itself.
    bool begin();
    /// Lets all keys go to the window that has the keyboard now.
    void end();

private:
    void onEvent(const xcb_generic_event_t *event);
    /// Whether a key that went down as a hot key is up again; then says so on the connection.
    void lookForRelease();

    X11Connection &m_connection;
    const RawInput &m_input;
    QTimer m_limit;
    QTimer m_quietLimit;
    QTimer m_releaseWatch;
    bool m_isQuiet = false;
    xcb_timestamp_t m_pressBefore = 0;
    bool m_isHolding = false;
    /// The hot key whose release the hold keeps from those who wait for it; 0 for none.
    xcb_keycode_t m_pressedKey = 0;
};

} // namespace vesk
