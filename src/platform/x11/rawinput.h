// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
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

    /// The core protocol's bit of a modifier key; 0 for any other key.
    [[nodiscard]] uint8_t modifierMask(xcb_keycode_t key) const { return m_modifiers.value(key, 0); }
    [[nodiscard]] bool isModifier(xcb_keycode_t key) const { return m_modifiers.contains(key); }

Q_SIGNALS:
    /// A key went down; not repeated while it is held.
    void keyPressed(xcb_keycode_t key);
    void keyReleased(xcb_keycode_t key);
    /// A mouse button went down; not the wheel.
    void buttonPressed();

private:
    struct Press
    {
        /// 0 for a mouse button.
        xcb_keycode_t key = 0;
        xcb_timestamp_t time = 0;
    };

    void onEvent(const xcb_generic_event_t *event);
    void onPress(Press press);
    void readModifiers();

    X11Connection &m_connection;
    bool m_isListening = false;
    QHash<xcb_keycode_t, uint8_t> m_modifiers;
    Press m_last;
    Press m_previous;
    Press m_hotKey;
};

} // namespace vesk
