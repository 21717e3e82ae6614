// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QHash>

#include <xcb/xcb.h>

#include <optional>

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
    /// The key of the last press that was acted upon; 0 once it is known to be up. The server repeats a
    /// grabbed key while it is held: it seems to go up and down at one and the same time.
    xcb_keycode_t m_heldKey = 0;
    /// When the held key went up, or seemed to; none since its last press. Whether a key goes up as an
    /// event of the grab or as raw input depends on whether the grab was given back by then.
    std::optional<xcb_timestamp_t> m_releaseTime;
};

} // namespace vesk
