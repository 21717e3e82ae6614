// SPDX-License-Identifier: MIT
#pragma once

#include "notes/noterules.h"

/// How prompts are added to the store and removed from it.
namespace vesk::promptrules {

using noterules::Kept;
using noterules::Outcome;

/// Keeps a selection as a prompt, unless the newest prompt has exactly this text. Saves.
[[nodiscard]] Kept keepSelection(NotesStore &store, const Clock &clock, const QString &text);

/// Adds a typed prompt, trimmed of white space. Saves.
[[nodiscard]] Kept addTyped(NotesStore &store, const Clock &clock, const QString &text);

/// Deletes every done prompt. Saves.
void clearDone(NotesStore &store);

} // namespace vesk::promptrules
