// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QHash>

#include <xcb/xcb.h>

#include <span>

namespace vesk {

class X11Connection;

/// Knows which key produces which character in the user's layouts. Reads the layouts when first needed.
class KeyLetters final
{
public:
    explicit KeyLetters(X11Connection &connection);

    /// See HotKeys.
    [[nodiscard]] std::optional<KeyPosition> findKey(QChar character) const;
    [[nodiscard]] QChar characterOn(KeyPosition key) const;

    /// Must be called when the keyboard layout has changed.
    void forget() { m_isRead = false; }

private:
    void read() const;
    void readKey(KeyPosition key, std::span<const xcb_keysym_t> keysyms) const;

    X11Connection &m_connection;
    mutable bool m_isRead = false;
    mutable QHash<KeyPosition, QChar> m_printed;
    /// By upper-case character: without and with Shift.
    mutable QHash<QChar, KeyPosition> m_plain;
    mutable QHash<QChar, KeyPosition> m_shifted;
};

} // namespace vesk
