// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QObject>
#include <QSet>

#include <xcb/xcb.h>

namespace vesk {

class X11Connection;

/// Knows which keys are modifiers, and which of the eight modifier bits of the core protocol each has. Only
/// Shift, Caps Lock and Control have fixed bits; the layout decides about the others. Follows every change of
/// the layout.
class ModifierMap final : public QObject
{
    Q_OBJECT

public:
    explicit ModifierMap(X11Connection &connection);

    [[nodiscard]] bool isModifier(xcb_keycode_t key) const { return m_masks.contains(key); }
    /// The modifiers that a key adds to a combination; empty for locks and for keys that are not modifiers.
    [[nodiscard]] Qt::KeyboardModifiers modifiersOf(xcb_keycode_t key) const;
    [[nodiscard]] bool isCapsLock(xcb_keycode_t key) const;
    /// Whether a key is Caps Lock, Num Lock or Scroll Lock.
    [[nodiscard]] bool isLock(xcb_keycode_t key) const { return (m_masks.value(key, 0) & m_bits.locks) != 0; }
    /// Whether a modifier, alone or with another one, switches the keyboard layout.
    [[nodiscard]] bool isLayoutSwitch(xcb_keycode_t key) const { return m_layoutSwitches.contains(key); }

    /// The bits of these modifiers.
    [[nodiscard]] uint8_t bitsOf(Qt::KeyboardModifiers modifiers) const;
    /// The bits of Caps Lock, Num Lock and Scroll Lock, if the keyboard has them.
    [[nodiscard]] uint8_t lockBits() const { return m_bits.locks; }

Q_SIGNALS:
    /// Emitted when a modifier has moved to another key or bit.
    void changed();
    /// Emitted when the layout has changed; after `changed`, if modifiers have moved too.
    void keyboardChanged();

private:
    struct Bits
    {
        uint8_t alt = 0;
        uint8_t super = 0;
        uint8_t groupSwitch = 0;
        uint8_t locks = 0;

        friend bool operator==(const Bits &, const Bits &) = default;
    };
    using Masks = QHash<xcb_keycode_t, uint8_t>;

    void onEvent(const xcb_generic_event_t *event);
    void update();
    void read();
    [[nodiscard]] Bits findBits(const Masks &masks, const xcb_get_keyboard_mapping_reply_t *mapping) const;

    X11Connection &m_connection;
    Masks m_masks;
    Bits m_bits;
    QSet<xcb_keycode_t> m_layoutSwitches;
    bool m_isStale = false;
};

} // namespace vesk
