// SPDX-License-Identifier: MIT
#pragma once

#include "platform/eventposter.h"
#include "platform/freedesktop/desktopentries.h"

#include <QList>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

/// How an application reacts to the keys of a command.
enum class KeyTaker {
    Ordinary,
    /// Usually ordinary, but the keyboard may be in a terminal or in the screen of another machine.
    Uncertain,
    /// Control-C interrupts the running program.
    Terminal,
    /// Has no keys for the clipboard, or unusual ones: in some terminals, the usual paste key quotes the next
    /// key.
    OwnKeys,
    /// Control-C is the prefix of other commands.
    Emacs,
    /// Asks for a password. Must not get any keys from Vesk.
    PasswordPrompt,
    /// Shows the screen of another machine, where anything may have the focus and the clipboard may be
    /// different.
    OtherMachine,
};

/// Returns what has the focus in a window. `entry` is the desktop entry of the window's application, null
/// if it has none. `role` is the role of the object with the focus, nullopt if it is not known.
[[nodiscard]] KeyTaker keyTakerOf(const WindowIdentity &window, const DesktopEntry *entry,
                                  const std::optional<QString> &role = std::nullopt);

/// Returns the keysyms of a command, modifiers first; empty if the application must not get them.
[[nodiscard]] QList<uint32_t> keysFor(EventPoster::Command command, KeyTaker taker);

} // namespace vesk
