// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>

#include <xcb/xcb.h>

namespace vesk {

class RawInput;
class X11Connection;

/// Holds back what is typed while one of Vesk's windows opens, for that window: the server delivers no keys
/// until the window has the focus, and then delivers them all in order. Ends on its own after a moment, in
/// case the window manager does not focus any window.
class KeyboardHold final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive this object.
    KeyboardHold(X11Connection &connection, const RawInput &input);

    /// Holds the keys without any application noticing: toolkits take a grab of the keyboard for a loss of
    /// focus, so this does not use one. Mouse clicks are held back as well. Does nothing while another
    /// application has grabbed the pointer, for example with a menu open.
    void beginQuietly();
    /// Ends what `beginQuietly` began.
    void endQuiet();
    [[nodiscard]] bool isQuiet() const { return m_isQuiet; }
    /// Whether the user has pressed a key or button that `beginQuietly` holds back from the frontmost
    /// application. False if the user's keys are not being listened to.
    [[nodiscard]] bool keepsPress() const;
    /// Returns whether the keys are held now: they are not if another application has grabbed the keyboard.
    bool begin();
    /// Delivers all held keys to the window that has the focus now.
    void end();

private:
    void onEvent(const xcb_generic_event_t *event);
    /// Checks whether a key that was pressed as a hot key has been released, and if so reports that on the
    /// connection.
    void lookForRelease();

    X11Connection &m_connection;
    const RawInput &m_input;
    QTimer m_limit;
    QTimer m_quietLimit;
    QTimer m_releaseWatch;
    bool m_isQuiet = false;
    xcb_timestamp_t m_pressBefore = 0;
    bool m_isHolding = false;
    /// The hot key whose release its listeners do not get because of the hold; 0 for none.
    xcb_keycode_t m_pressedKey = 0;
};

} // namespace vesk
