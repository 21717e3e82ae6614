// SPDX-License-Identifier: MIT
#pragma once

#include "notes/noterules.h"

/// How prompts come into the store and leave it.
namespace vesk::promptrules {

using noterules::Kept;
using noterules::Outcome;

/// Keeps a selection as a prompt, unless the newest prompt has exactly this text. Saves.
[[nodiscard]] Kept keepSelection(NotesStore &store, const Clock &clock, const QString &text);

/// Adds a prompt that was typed, without white space at its ends. Saves.
[[nodiscard]] Kept addTyped(NotesStore &store, const Clock &clock, const QString &text);

/// Deletes every done prompt. Saves.
void clearDone(NotesStore &store);

} // namespace vesk::promptrules
