// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/modifiermap.h"

#include <QObject>

#include <xcb/xcb.h>

namespace vesk {

class X11Connection;

/// The keys and buttons of the user's devices, heard also while another application has grabbed them.
class RawInput final : public QObject
{
    Q_OBJECT

public:
    /// Does not listen yet.
    explicit RawInput(X11Connection &connection);

    /// Begins or ends to listen. What was heard before is forgotten at the end.
    void setListening(bool isListening);
    [[nodiscard]] bool isListening() const { return m_isListening; }

    /// Server time of the last press that may have changed a selection: a mouse button or a key that
    /// is no modifier, hot keys left out. 0 before the first.
    [[nodiscard]] xcb_timestamp_t lastPress() const;

    /// Declares that the press of this key at this time was a hot key of ours, and no input of the
    /// application's. May come before the press itself is heard.
    void setHotKeyPress(xcb_keycode_t key, xcb_timestamp_t time);

    [[nodiscard]] const ModifierMap &modifiers() const { return m_modifiers; }
    [[nodiscard]] bool isModifier(xcb_keycode_t key) const { return m_modifiers.isModifier(key); }
    /// Whether Caps Lock is on now.
    [[nodiscard]] bool isCapsLocked() const;
    /// Whether another client has grabbed the keyboard.
    [[nodiscard]] bool isKeyboardTaken() const;

Q_SIGNALS:
    /// A key went down, at the server's time; not repeated while it is held.
    void keyPressed(xcb_keycode_t key, xcb_timestamp_t time);
    void keyReleased(xcb_keycode_t key, xcb_timestamp_t time);
    /// A mouse button went down; not the wheel.
    void buttonPressed();
    void wheelTurned();
    /// Listening has begun or ended; what was down or up before is not known.
    void listeningChanged();

private:
    struct Press
    {
        /// 0 for a mouse button.
        xcb_keycode_t key = 0;
        xcb_timestamp_t time = 0;
    };

    void onEvent(const xcb_generic_event_t *event);
    void onPress(Press press);

    X11Connection &m_connection;
    ModifierMap m_modifiers;
    bool m_isListening = false;
    Press m_last;
    Press m_previous;
    Press m_hotKey;
};

} // namespace vesk
