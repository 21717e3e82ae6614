// SPDX-License-Identifier: MIT
#include "panel/opennote.h"

#include "notes/notesstore.h"
#include "panel/cardselection.h"
#include "panel/notelistmodel.h"
#include "panel/panelkeyboard.h"

namespace vesk {

OpenNote::OpenNote(NotesStore &store, NoteListModel &notes, PanelKeyboard &keyboard, CardSelection &selection)
    : m_store(store)
    , m_notes(notes)
    , m_keyboard(keyboard)
    , m_selection(selection)
{
    connect(&store.notes(), &LiveQueryBase::removed, this, [this](qsizetype, const RecordId &id) {
        if (m_id == id)
            setId(std::nullopt);
    });
    connect(&keyboard, &PanelKeyboard::activeFieldChanged, this, [this] {
        if (m_keyboard.isInField())
            close();
    });
}

void OpenNote::open(const Note &note)
{
    if (m_id == note.id())
        return;
    const RecordId id = note.id();
    close();
    if (m_keyboard.isInField())
        m_keyboard.request(PanelKeyboard::Field::None);
    setId(id);
    m_selection.select(id);
}

void OpenNote::close()
{
    if (!m_id)
        return;
    Note *note = m_store.findNote(*m_id);
    setId(std::nullopt);
    if (note && note->isBlank()) {
        m_store.remove(*note);
        m_selection.select(std::nullopt);
    }
    // What could not be written stays in the store, which tries again and has the panel say so.
    static_cast<void>(m_store.save());
    if (m_keyboard.isEditing() && !m_keyboard.isInField())
        m_keyboard.request(PanelKeyboard::Field::None);
}

void OpenNote::closeIfBlank()
{
    const Note *note = m_id ? m_store.findNote(*m_id) : nullptr;
    if (note && note->isBlank())
        close();
}

QString OpenNote::cardId() const
{
    return m_id ? m_id->toString(QUuid::WithoutBraces) : QString();
}

void OpenNote::setId(const std::optional<RecordId> &id)
{
    if (m_id == id)
        return;
    m_id = id;
    if (id)
        m_notes.setOpenNote(id);
    Q_EMIT changed();
    // A card closes before its row moves: a view that takes the editor down in the midst of a move falls.
    if (!m_id)
        m_notes.setOpenNote(std::nullopt);
}

} // namespace vesk
