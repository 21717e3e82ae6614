// SPDX-License-Identifier: MIT
#include "panel/cardactions.h"

#include "notes/promptrules.h"
#include "panel/cardselection.h"
#include "panel/opennote.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

/// How much typing in a note a power failure can lose.
constexpr auto kSavesWithin = 500ms;

RecordId idOf(const QString &text)
{
    return RecordId::fromString(text);
}

/// An address that can be handed to a browser; nullopt if the text is not a complete address. Browsers leave
/// some characters unencoded that may only appear encoded, such as `|` and spaces.
std::optional<QUrl> findAddress(const std::optional<QString> &text)
{
    if (!text)
        return std::nullopt;
    // A stray percent sign would make Qt encode all the others again.
    static const QRegularExpression kLonePercent(u"%(?![0-9A-Fa-f]{2})"_s);
    const QUrl url(text->trimmed().replace(kLonePercent, u"%25"_s), QUrl::TolerantMode);
    return url.isValid() && !url.scheme().isEmpty() ? std::optional(url) : std::nullopt;
}

} // namespace

CardActions::CardActions(NotesStore &store, Clock &clock, OpenNote &openNote, CardSelection &selection)
    : m_store(store)
    , m_clock(clock)
    , m_openNote(openNote)
    , m_selection(selection)
{
}

void CardActions::edit(const QString &id, const QString &text)
{
    Note *note = m_store.findNote(idOf(id));
    if (!note || note->text() == text)
        return;
    note->setText(text);
    if (!m_savesSoon)
        saveSoon(this, &m_clock);
}

QCoro::Task<> CardActions::saveSoon(QPointer<CardActions> self, Clock *clock)
{
    self->m_savesSoon = true;
    co_await clock->sleep(kSavesWithin);
    if (!self)
        co_return;
    self->m_savesSoon = false;
    self->save();
}

void CardActions::save()
{
    // The store keeps what could not be written, tries again, and the panel reports it.
    static_cast<void>(m_store.save());
}

void CardActions::togglePinned(const QString &id)
{
    Note *note = m_store.findNote(idOf(id));
    if (!note)
        return;
    note->setPinned(!note->isPinned());
    save();
}

void CardActions::toggleItem(const QString &id, int line)
{
    Note *note = m_store.findNote(idOf(id));
    if (!note)
        return;
    note->toggleItem(line);
    save();
}

void CardActions::openSource(const QString &id)
{
    const Note *note = m_store.findNote(idOf(id));
    if (!note)
        return;
    if (const std::optional<QUrl> url = findAddress(note->sourceURL()))
        Q_EMIT urlRequested(*url);
    else if (const std::optional<QString> bundle = note->sourceBundleID())
        Q_EMIT applicationRequested(*bundle);
}

void CardActions::clearDonePrompts()
{
    promptrules::clearDone(m_store);
}

void CardActions::activate(const QString &id)
{
    activate(idOf(id));
}

bool CardActions::activate(const RecordId &id)
{
    const Note *note = m_store.findNote(id);
    Prompt *prompt = m_store.findPrompt(id);
    if (note) {
        m_openNote.open(*note);
    } else if (prompt) {
        prompt->toggleDone();
        save();
    }
    return note || prompt;
}

void CardActions::remove(const QString &id)
{
    remove(idOf(id));
}

bool CardActions::remove(const RecordId &id)
{
    Note *note = m_store.findNote(id);
    Prompt *prompt = m_store.findPrompt(id);
    if (!note && !prompt)
        return false;
    m_selection.leave(id);
    if (note)
        m_store.remove(*note);
    else
        m_store.remove(*prompt);
    save();
    return true;
}

void CardActions::copy(const QString &id)
{
    if (const Note *note = m_store.findNote(idOf(id)))
        Q_EMIT copyRequested(note->text());
    else if (const Prompt *prompt = m_store.findPrompt(idOf(id)))
        Q_EMIT copyRequested(prompt->text());
}

void CardActions::pasteBack(const QString &id)
{
    pasteBack(idOf(id));
}

bool CardActions::pasteBack(const RecordId &id)
{
    const Note *note = m_store.findNote(id);
    const Prompt *prompt = m_store.findPrompt(id);
    if (!note && !prompt)
        return false;
    // Read this before closing the note, which removes a blank one.
    const QString text = note ? note->text() : prompt->text();
    if (note)
        m_openNote.close();
    Q_EMIT pasteRequested(text);
    return true;
}

} // namespace vesk
