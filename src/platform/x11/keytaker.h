// SPDX-License-Identifier: MIT
#pragma once

#include "platform/eventposter.h"
#include "platform/freedesktop/desktopentries.h"

#include <QList>

#include <xcb/xcb.h>

namespace vesk {

/// What an application does with the keys of a command.
enum class KeyTaker {
    Ordinary,
    /// Control-C interrupts what runs in it.
    Terminal,
    /// A terminal that has no key for the clipboard; what others paste by, it quotes the next key by.
    OldTerminal,
    /// Control-C begins a command of its own.
    Emacs,
    /// Asks for a password; gets no key of ours.
    PasswordPrompt,
};

/// Which of them a window's application is. `entry` is its desktop entry, null if it has none.
[[nodiscard]] KeyTaker keyTakerOf(const WindowIdentity &window, const DesktopEntry *entry);

/// The keys of a command, modifiers first, as keysyms; empty if the application must not get them.
[[nodiscard]] QList<uint32_t> keysFor(EventPoster::Command command, KeyTaker taker);

} // namespace vesk
