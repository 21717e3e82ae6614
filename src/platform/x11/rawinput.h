// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/keystates.h"
#include "platform/x11/modifiermap.h"

#include <QList>
#include <QObject>

#include <xcb/xinput.h>

#include <optional>

namespace vesk {

class X11Connection;

/// The keys and buttons of the user's devices, observed even while another application has grabbed them.
class RawInput final : public QObject
{
    Q_OBJECT

public:
    /// Does not listen yet.
    explicit RawInput(X11Connection &connection);

    /// Starts or stops listening. Stopping forgets what was observed.
    void setListening(bool isListening);
    [[nodiscard]] bool isListening() const { return m_isListening; }

    /// Server time of the last press that may have changed a selection; 0 before the first. Mouse buttons up
    /// to the third may, and so may any key that reaches an application, whatever it does there: a letter
    /// replaces what is selected, Control-L selects something else. These cannot:
    /// - modifiers;
    /// - keys that a grab on the root window took, which are Vesk's own hot keys and those of the desktop,
    ///   also one that runs a command of Vesk's;
    /// - keys pressed while Super, or Control and Alt together, are held: where nobody has them as hot keys,
    ///   applications do nothing with them that concerns a selection;
    /// - keys that Vesk itself has sent.
    [[nodiscard]] xcb_timestamp_t lastPress() const { return m_lastPress; }

    /// Ignores the keys from a device that result from these requests to the server, from the first to the
    /// last. Must be called before their events are read.
    void ignoreRequests(xcb_input_device_id_t device, uint32_t first, uint32_t last);

    [[nodiscard]] const ModifierMap &modifiers() const { return m_modifiers; }
    [[nodiscard]] bool isModifier(xcb_keycode_t key) const { return m_modifiers.isModifier(key); }
    /// Whether Caps Lock is on now.
    [[nodiscard]] bool isCapsLocked() const;
    /// Whether another client has grabbed the keyboard.
    [[nodiscard]] bool isKeyboardTaken() const;

Q_SIGNALS:
    /// A key was pressed, at the server's time; not repeated while it is held.
    void keyPressed(xcb_keycode_t key, xcb_timestamp_t time);
    void keyReleased(xcb_keycode_t key, xcb_timestamp_t time);
    /// A mouse button was pressed; not emitted for the wheel.
    void buttonPressed();
    void wheelTurned();
    /// Listening has started or stopped. Which keys were down before is unknown.
    void listeningChanged();

private:
    struct Requests
    {
        xcb_input_device_id_t device = 0;
        uint32_t first = 0;
        uint32_t last = 0;
    };

    void onEvent(const xcb_generic_event_t *event);
    void onButton(uint32_t button, xcb_timestamp_t time);
    void onKey(bool isPress, xcb_keycode_t key, xcb_timestamp_t time);
    void onRootFocus(bool isIn, uint8_t mode);
    [[nodiscard]] bool isOwn(const xcb_input_raw_key_press_event_t &event);
    [[nodiscard]] bool canChangeSelection(xcb_keycode_t key) const;
    void forget();

    X11Connection &m_connection;
    ModifierMap m_modifiers;
    bool m_isListening = false;
    /// Our requests whose keys have not all been received yet.
    QList<Requests> m_ownRequests;
    /// The keys that are down, as far as they were observed.
    KeyStates m_down;
    xcb_timestamp_t m_lastPress = 0;
    /// The value of `m_lastPress` before the most recent key; nullopt if that was not a key press.
    std::optional<xcb_timestamp_t> m_beforeKey;
    /// Whether a grab on the root window receives the keys.
    bool m_isRootGrabbed = false;
};

} // namespace vesk
