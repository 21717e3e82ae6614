// SPDX-License-Identifier: MIT
#pragma once

#include "notes/notesstore.h"

/// How prompts come into the store and leave it.
namespace vesk::promptrules {

enum class SaveOutcome {
    Saved,
    /// Kept, but not written: the store goes on trying.
    Pending,
    /// The newest prompt already has exactly this text; nothing was stored.
    AlreadyThere,
};

/// Keeps a selection as a prompt, unless the newest prompt has exactly this text. Saves.
SaveOutcome saveFromSelection(NotesStore &store, const Clock &clock, const QString &text);

/// Keeps a prompt written in the panel; `text` is trimmed first and an empty one is not kept. Saves.
/// Returns whether it was kept.
bool saveFollowUp(NotesStore &store, const Clock &clock, const QString &text);

/// Deletes every done prompt. Saves.
void clearDone(NotesStore &store);

} // namespace vesk::promptrules
