// SPDX-License-Identifier: MIT
#include "notes/promptrules.h"

namespace vesk::promptrules {

namespace {

Kept insert(NotesStore &store, const Clock &clock, const QString &text, Prompt::Origin origin)
{
    if (text.isEmpty())
        return {.outcome = Outcome::Empty};
    if (noterules::isTooLong(text))
        return {.outcome = Outcome::TooLong};
    store.insert(std::make_unique<Prompt>(clock, text, origin));
    return {.outcome = Outcome::Added, .problem = store.save() ? QString() : store.problem()};
}

} // namespace

Kept keepSelection(NotesStore &store, const Clock &clock, const QString &text)
{
    // Stored texts are well formed, so compare the new text in the form in which it would be stored.
    const Prompt *newest = store.prompts().first();
    if (newest != nullptr && newest->text() == markup::wellFormed(text))
        return {.outcome = Outcome::AlreadyThere};
    return insert(store, clock, text, Prompt::Origin::Captured);
}

Kept addTyped(NotesStore &store, const Clock &clock, const QString &text)
{
    return insert(store, clock, markup::trimmed(text), Prompt::Origin::FollowUp);
}

void clearDone(NotesStore &store)
{
    for (Prompt *prompt : store.donePrompts())
        store.remove(*prompt);
    // What is not deleted from the file now will be by a later save.
    static_cast<void>(store.save());
}

} // namespace vesk::promptrules
