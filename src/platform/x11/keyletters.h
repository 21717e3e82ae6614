// SPDX-License-Identifier: MIT
#pragma once

#include "platform/hotkeys.h"

#include <QHash>

#include <xcb/xcb.h>

#include <span>

namespace vesk {

class X11Connection;

/// Which characters stand on which keys in the user's layouts. Read when it is first asked for.
class KeyLetters final
{
public:
    explicit KeyLetters(X11Connection &connection);

    /// The contract of HotKeys.
    [[nodiscard]] std::optional<KeyPosition> findKey(QChar character) const;
    [[nodiscard]] QChar characterOn(KeyPosition key) const;

    /// To be called when the keyboard has another layout.
    void forget() { m_isRead = false; }

private:
    void read() const;
    void readKey(KeyPosition key, std::span<const xcb_keysym_t> keysyms) const;

    X11Connection &m_connection;
    mutable bool m_isRead = false;
    mutable QHash<KeyPosition, QChar> m_printed;
    /// By character in upper case: on its own, and together with Shift.
    mutable QHash<QChar, KeyPosition> m_plain;
    mutable QHash<QChar, KeyPosition> m_shifted;
};

} // namespace vesk
