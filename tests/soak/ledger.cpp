// SPDX-License-Identifier: MIT
#include "soak/ledger.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

bool isBox(QChar c)
{
    return c == u'\u2610' || c == u'\u2611';
}

/// Whether exactly one checkbox is toggled and everything else is equal.
bool isOneBoxTurned(const QString &before, const QString &after)
{
    if (before.size() != after.size())
        return false;
    int turned = 0;
    for (qsizetype i = 0; i < before.size(); ++i) {
        if (before.at(i) == after.at(i))
            continue;
        if (!isBox(before.at(i)) || !isBox(after.at(i)))
            return false;
        ++turned;
    }
    return turned == 1;
}

QStringList sourceOf(const Note &note)
{
    if (!note.sourceApp())
        return {};
    return {*note.sourceApp(), note.sourceBundleID().value_or(QString()),
            note.sourceTitle().value_or(QString()), note.sourceURL().value_or(QString())};
}

} // namespace

Ledger::Entries Ledger::read(NotesStore &store)
{
    Entries entries;
    for (qsizetype i = 0; i < store.notes().count(); ++i) {
        const Note &note = store.notes().at(i);
        entries.insert(note.id(), {.isPrompt = false,
                                   .text = note.text(),
                                   .isMarked = note.isPinned(),
                                   .createdAt = note.createdAt(),
                                   .updatedAt = note.updatedAt(),
                                   .source = sourceOf(note)});
    }
    for (qsizetype i = 0; i < store.prompts().count(); ++i) {
        const Prompt &prompt = store.prompts().at(i);
        entries.insert(prompt.id(),
                       {.isPrompt = true,
                        .text = prompt.text(),
                        .isMarked = prompt.isDone(),
                        .createdAt = prompt.createdAt(),
                        .updatedAt = prompt.createdAt(),
                        .source = prompt.isCaptured() ? QStringList{u"captured"_s} : QStringList()});
    }
    return entries;
}

QString Ledger::findAdded(const Entries &now, const Effect &effect) const
{
    QStringList added;
    for (auto it = now.begin(); it != now.end(); ++it) {
        if (m_entries.contains(it.key()))
            continue;
        if (it->isPrompt != effect.isPrompt || it->isMarked)
            return u"something of another kind was added: "_s + it->text;
        if (it->createdAt != it->updatedAt)
            return u"added with two dates: "_s + it->text;
        if (it->source.isEmpty() == effect.isCaptured)
            return u"added with the wrong source: "_s + it->text + u" from "_s + it->source.join(u',');
        added.append(it->text);
    }
    const bool isRight = effect.added && added == QStringList{*effect.added};
    if (isRight || (added.isEmpty() && !(effect.added && effect.isAddedForSure)))
        return {};
    return u"added is \"%1\" and not \"%2\""_s.arg(added.join(u"\" and \""_s),
                                                   effect.added.value_or(QString()));
}

QString Ledger::follow(NotesStore &store, const Effect &effect, const QSet<RecordId> &openNotes,
                       const OpenText &openText)
{
    const Entries now = read(store);
    if (QString wrong = findAdded(now, effect); !wrong.isEmpty())
        return wrong;
    m_isOpenTextChanged = false;
    int touched = 0;
    int cleared = 0;
    for (auto it = m_entries.begin(); it != m_entries.end(); ++it) {
        const auto after = now.constFind(it.key());
        if (after != now.end() && *after == *it) {
            if (effect.changed == it.key() || effect.removed == it.key())
                return u"left as it was: "_s + it->text;
            continue;
        }
        if (after == now.end()) {
            const bool isBlank = !it->isPrompt && it->text.trimmed().isEmpty();
            if (effect.removed == it.key() || (isBlank && openNotes.contains(it.key())))
                continue;
            if (effect.mayClearDone && it->isPrompt && it->isMarked)
                ++cleared;
            else if (effect.mayTouch.contains(it.key()))
                ++touched;
            else
                return u"lost: "_s + it->text;
        } else if (after->createdAt != it->createdAt || after->source != it->source
                   || after->isPrompt != it->isPrompt) {
            return u"made anew: "_s + it->text;
        } else if (effect.changed == it.key()) {
            if (!effect.isRight(it->text, after->text) || after->isMarked != it->isMarked)
                return u"\"%1\" became \"%2\""_s.arg(it->text, after->text);
        } else if (openNotes.contains(it.key()) && after->isMarked == it->isMarked) {
            if (!openText.explains(it.key(), it->text, after->text))
                return u"the open note \"%1\" became \"%2\""_s.arg(it->text, after->text);
            m_isOpenTextChanged = true;
        } else {
            const bool isMarkTurned = after->isMarked != it->isMarked && after->text == it->text;
            const bool isSmall = isMarkTurned || isOneBoxTurned(it->text, after->text);
            if (!isSmall || after->updatedAt != it->updatedAt || !effect.mayTouch.contains(it.key()))
                return u"\"%1\" became \"%2\""_s.arg(it->text, after->text);
            ++touched;
        }
    }
    if (touched > 1 || (touched > 0 && cleared > 0))
        return u"%1 records were touched at once, %2 cleared"_s.arg(touched).arg(cleared);
    if (effect.removed && now.contains(*effect.removed))
        return u"not removed"_s;
    if (cleared > 0
        && std::ranges::any_of(now, [](const Entry &each) { return each.isPrompt && each.isMarked; }))
        return u"only some of the prompts that are done were cleared"_s;
    m_entries = now;
    return {};
}

} // namespace vesk
