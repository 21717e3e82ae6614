// SPDX-License-Identifier: MIT
#include "notes/promptrules.h"

namespace vesk::promptrules {

namespace {

void keep(NotesStore &store, const Clock &clock, const QString &text, Prompt::Origin origin)
{
    store.insert(std::make_unique<Prompt>(clock, text, origin));
    // A failed save loses nothing: the prompt stays pending, and the store tries again by itself.
    store.save();
}

} // namespace

SaveOutcome saveFromSelection(NotesStore &store, const Clock &clock, const QString &text)
{
    // Stored texts are well-formed, so the new one is compared as it would be stored.
    const Prompt *newest = store.prompts().first();
    if (newest != nullptr && newest->text() == markup::wellFormed(text))
        return SaveOutcome::AlreadyThere;
    keep(store, clock, text, Prompt::Origin::Captured);
    return SaveOutcome::Saved;
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
    // Dropped for the same reason as above.
    store.save();
}

} // namespace vesk::promptrules
