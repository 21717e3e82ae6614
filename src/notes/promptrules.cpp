// SPDX-License-Identifier: MIT
#include "notes/promptrules.h"

namespace vesk::promptrules {

namespace {

/// Whether the prompt is durable. If not, nothing is lost: it stays pending, and the store tries again
/// by itself.
bool keep(NotesStore &store, const Clock &clock, const QString &text, Prompt::Origin origin)
{
    store.insert(std::make_unique<Prompt>(clock, text, origin));
    return store.save();
}

} // namespace

SaveOutcome saveFromSelection(NotesStore &store, const Clock &clock, const QString &text)
{
    // Stored texts are well-formed, so the new one is compared as it would be stored.
    const Prompt *newest = store.prompts().first();
    if (newest != nullptr && newest->text() == markup::wellFormed(text))
        return SaveOutcome::AlreadyThere;
    return keep(store, clock, text, Prompt::Origin::Captured) ? SaveOutcome::Saved : SaveOutcome::Pending;
}

bool saveFollowUp(NotesStore &store, const Clock &clock, const QString &text)
{
    const QString trimmed = markup::trimmed(text);
    if (trimmed.isEmpty())
        return false;
    keep(store, clock, trimmed, Prompt::Origin::FollowUp);
    return true;
}

void clearDone(NotesStore &store)
{
    for (Prompt *prompt : store.donePrompts())
        store.remove(*prompt);
    // What is not deleted in the file yet is deleted by a later save.
    static_cast<void>(store.save());
}

} // namespace vesk::promptrules
