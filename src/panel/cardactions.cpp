// SPDX-License-Identifier: MIT
#include "panel/cardactions.h"

#include "notes/notesstore.h"
#include "panel/panelmodel.h"

namespace vesk {

namespace {

RecordId idOf(const QString &text)
{
    return RecordId::fromString(text);
}

/// An address that can be handed to a browser; none if the text is no whole address.
std::optional<QUrl> findAddress(const std::optional<QString> &text)
{
    if (!text)
        return std::nullopt;
    const QUrl url(*text, QUrl::StrictMode);
    return url.isValid() && !url.scheme().isEmpty() ? std::optional(url) : std::nullopt;
}

} // namespace

CardActions::CardActions(PanelModel &panel, NotesStore &store)
    : m_panel(panel)
    , m_store(store)
{
}

void CardActions::open(const QString &id)
{
    if (const Note *note = m_store.findNote(idOf(id)))
        m_panel.open(*note);
}

void CardActions::edit(const QString &id, const QString &text)
{
    if (Note *note = m_store.findNote(idOf(id)))
        m_panel.edit(*note, text);
}

void CardActions::togglePinned(const QString &id)
{
    if (Note *note = m_store.findNote(idOf(id)))
        m_panel.togglePinned(*note);
}

void CardActions::toggleItem(const QString &id, int line)
{
    if (Note *note = m_store.findNote(idOf(id)))
        m_panel.toggleItem(*note, line);
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

void CardActions::toggleDone(const QString &id)
{
    if (Prompt *prompt = m_store.findPrompt(idOf(id)))
        m_panel.toggleDone(*prompt);
}

void CardActions::remove(const QString &id)
{
    if (Note *note = m_store.findNote(idOf(id)))
        m_panel.deleteNote(*note);
    else if (Prompt *prompt = m_store.findPrompt(idOf(id)))
        m_panel.deletePrompt(*prompt);
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
    // Read before the note is closed, which removes a blank one.
    const QString text = note ? note->text() : prompt->text();
    if (note)
        m_panel.collapse();
    Q_EMIT m_panel.pasteRequested(text);
    return true;
}

} // namespace vesk
