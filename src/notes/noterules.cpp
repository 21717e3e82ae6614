// SPDX-License-Identifier: MIT
#include "notes/noterules.h"

namespace vesk::noterules {

namespace {

/// The most recently changed note that has checkboxes; null if there is none.
Note *findLastChecklist(NotesStore &store)
{
    for (qsizetype i = 0; i < store.notes().count(); ++i) {
        if (store.notes().at(i).progress())
            return &store.notes().at(i);
    }
    return nullptr;
}

Kept save(NotesStore &store, Outcome outcome, const QString &appendedTo = {})
{
    return {
        .outcome = outcome, .problem = store.save() ? QString() : store.problem(), .appendedTo = appendedTo};
}

Kept insert(NotesStore &store, const Clock &clock, const QString &text,
            const std::optional<CaptureSource> &source = {})
{
    store.insert(std::make_unique<Note>(clock, text, source));
    return save(store, Outcome::Added);
}

/// The reason why a text cannot be added, if there is one.
std::optional<Kept> refuse(const QString &text)
{
    if (text.isEmpty())
        return Kept{.outcome = Outcome::Empty};
    if (isTooLong(text))
        return Kept{.outcome = Outcome::TooLong};
    return std::nullopt;
}

} // namespace

bool isTooLong(const QString &text)
{
    // A UTF-16 unit takes at most three bytes, so most texts need not be converted.
    return text.size() > kMaximumBytes / 3 && text.toUtf8().size() > kMaximumBytes;
}

Kept add(NotesStore &store, const Clock &clock, const QString &text)
{
    const QString trimmed = markup::trimmed(text);
    const std::optional<Kept> refused = refuse(trimmed);
    return refused ? *refused : insert(store, clock, trimmed);
}

Kept addTyped(NotesStore &store, const Clock &clock, const QString &text)
{
    const QString trimmed = markup::trimmed(text);
    const std::optional<Kept> refused = refuse(trimmed);
    return refused ? *refused : insert(store, clock, markup::expandMarkup(trimmed));
}

Kept keepSelection(NotesStore &store, const Clock &clock, const QString &text,
                   const std::optional<CaptureSource> &source, Target target)
{
    if (const std::optional<Kept> refused = refuse(text))
        return *refused;
    const bool isChecklist = target == Target::NewChecklist || target == Target::LastChecklist;
    Note *last = nullptr;
    if (target == Target::LastNote)
        last = store.notes().first();
    else if (target == Target::LastChecklist)
        last = findLastChecklist(store);
    if (last) {
        const QString title = last->title();
        if (isChecklist)
            last->addChecklistItems(text);
        else
            last->append(text);
        return save(store, Outcome::Appended, title);
    }
    const QString kept = isChecklist ? markup::checklist(text) : text;
    // Stored texts are well formed, so compare the new text in the form in which it would be stored.
    const Note *newest = store.notes().first();
    if (newest && target != Target::LastChecklist && newest->text() == markup::wellFormed(kept))
        return save(store, Outcome::AlreadyThere);
    return insert(store, clock, kept, source);
}

} // namespace vesk::noterules
