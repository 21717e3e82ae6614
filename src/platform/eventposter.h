// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <functional>

namespace vesk {

/// Sends key presses to an application as if the user had made them.
class EventPoster
{
public:
    enum class Command {
        Copy,
        Paste,
        /// Pastes, unless what has the keyboard is or may be a terminal.
        PasteUnlessTerminal,
    };

    /// The window that keys went to at some moment, by the platform's own number.
    enum class Target : quint64 {
        None = 0
    };

    virtual ~EventPoster() = default;

    /// The window that has the keyboard now; while a hot key is handled, the one that had it at the press.
    /// `None` on an empty desktop.
    [[nodiscard]] virtual Target target() = 0;

    /// Posts the key combination of `command` to `target`. Waits until the key that started Vesk's own
    /// command is up: 700 ms for a copy, 2 s for pasting. Modifiers that the user holds then are out of the
    /// way for these keys only: what the user types next comes with them. Returns false, with nothing posted,
    /// if `target` has not, or no longer, got the keyboard; if another program keeps all keys for itself, as
    /// a menu or a screen lock does; if the window, or what has the keyboard in it, would take the keys for
    /// something else (a terminal takes Copy for an interrupt) or does not answer; if a key stays down; if
    /// `isWanted`, asked right before the keys go out, says no; or if the platform cannot post.
    virtual QCoro::Task<bool> post(Command command, Target target, std::function<bool()> isWanted) = 0;
};

} // namespace vesk
