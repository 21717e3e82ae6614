// SPDX-License-Identifier: MIT
#pragma once

#include "platform/eventposter.h"
#include "platform/freedesktop/desktopentries.h"

#include <QList>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

/// What an application does with the keys of a command.
enum class KeyTaker {
    Ordinary,
    /// Ordinary in general, but what has the keyboard may be a terminal or the screen of another machine.
    Uncertain,
    /// Control-C interrupts what runs in it.
    Terminal,
    /// Has no key for the clipboard, or other keys than the usual ones: what others paste by, a terminal
    /// quotes the next key by.
    OwnKeys,
    /// Control-C begins a command of its own.
    Emacs,
    /// Asks for a password; gets no key of ours.
    PasswordPrompt,
    /// Shows another machine's screen, where anything may have the keyboard and the clipboard may be another
    /// one.
    OtherMachine,
};

/// Which of them has the keyboard in a window. `entry` is the desktop entry of the window's application, null
/// if it has none. `role` is that of the object with the keyboard, nullopt if it could not be asked.
[[nodiscard]] KeyTaker keyTakerOf(const WindowIdentity &window, const DesktopEntry *entry,
                                  const std::optional<QString> &role = std::nullopt);

/// The keys of a command, modifiers first, as keysyms; empty if the application must not get them.
[[nodiscard]] QList<uint32_t> keysFor(EventPoster::Command command, KeyTaker taker);

} // namespace vesk
