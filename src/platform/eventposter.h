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
        /// Pastes, unless the keyboard is or may be in a terminal.
        PasteUnlessTerminal,
    };

    /// A window that had the focus, by the platform's own number.
    enum class Target : quint64 {
        None = 0
    };

    virtual ~EventPoster() = default;

    /// Returns the window that has the focus now; while a hot key is handled, the one that had it at the
    /// press. `None` on an empty desktop.
    [[nodiscard]] virtual Target target() = 0;

    /// Posts the key combination of `command` to `target`. First waits until no key but modifiers is down: up
    /// to 700 ms for a copy and 2 s for a paste. Modifiers that the user still holds are released for these
    /// keys only; they apply again to what the user types next.
    ///
    /// Returns false, with nothing posted, if
    /// - `target` does not, or no longer, have the focus;
    /// - another program has grabbed the keyboard, as a menu or a screen lock does;
    /// - the keys would mean something else there (Copy interrupts a terminal), or the window does not
    ///   answer;
    /// - a key stays down;
    /// - `isWanted`, called right before the keys are sent, returns false;
    /// - the platform cannot post keys.
    virtual QCoro::Task<bool> post(Command command, Target target, std::function<bool()> isWanted) = 0;
};

} // namespace vesk
