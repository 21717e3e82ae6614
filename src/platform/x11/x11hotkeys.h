// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QHash>

#include <xcb/xcb.h>

namespace vesk {

class RawInput;
class X11Connection;

/// Hot keys as passive grabs on the keys' positions, one for each state of the locks.
class X11HotKeys final : public HotKeys
{
    Q_OBJECT

public:
    X11HotKeys(X11Connection &connection, RawInput &input);

    bool registerHotKey(quint32 id, KeyCombination combination) override;
    void unregisterHotKey(quint32 id) override;

private:
    struct Grab
    {
        xcb_keycode_t key;
        uint16_t modifiers;
    };

    [[nodiscard]] bool grab(Grab grab);
    void ungrab(Grab grab);
    void onEvent(const xcb_generic_event_t *event);
    void onPress(const xcb_key_press_event_t &press);
    void onKeyReleased(xcb_keycode_t key);

    X11Connection &m_connection;
    RawInput &m_input;
    QHash<quint32, Grab> m_grabs;
    /// The key of the last press that was acted upon, until it is up; 0 for none. The server repeats
    /// a grabbed key while it is held.
    xcb_keycode_t m_heldKey = 0;
    /// When the held key seemed to go up; a repetition goes down again at the same time.
    xcb_timestamp_t m_releaseTime = 0;
};

} // namespace vesk
