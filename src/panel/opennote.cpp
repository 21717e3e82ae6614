// SPDX-License-Identifier: MIT
#include "panel/opennote.h"

#include "editor/noteeditorcontroller.h"
#include "notes/notesstore.h"
#include "panel/cardselection.h"
#include "panel/notelistmodel.h"
#include "panel/panelkeyboard.h"

namespace vesk {

OpenNote::OpenNote(const Needs &needs)
    : m_needs(needs)
{
    connect(&needs.store.notes(), &LiveQueryBase::removed, this, [this](qsizetype, const RecordId &id) {
        if (m_id == id)
            setId(std::nullopt);
    });
    connect(&needs.keyboard, &PanelKeyboard::activeFieldChanged, this, [this] {
        if (m_needs.keyboard.isInField())
            close();
    });
}

void OpenNote::open(const Note &note)
{
    if (m_id == note.id())
        return;
    const RecordId id = note.id();
    close();
    if (m_needs.keyboard.isInField())
        m_needs.keyboard.request(PanelKeyboard::Field::None);
    setId(id);
    m_needs.selection.select(id);
}

void OpenNote::close()
{
    if (!m_id)
        return;
    // Without animation the editor disappears at once.
    m_needs.editor.finishComposing();
    Note *note = m_needs.store.findNote(*m_id);
    setId(std::nullopt);
    if (note && note->isBlank()) {
        m_needs.store.remove(*note);
        m_needs.selection.select(std::nullopt);
    }
    // The store keeps what could not be written, tries again, and the panel reports it.
    static_cast<void>(m_needs.store.save());
    if (m_needs.keyboard.isEditing() && !m_needs.keyboard.isInField())
        m_needs.keyboard.request(PanelKeyboard::Field::None);
}

void OpenNote::closeIfBlank()
{
    m_needs.editor.finishComposing();
    const Note *note = m_id ? m_needs.store.findNote(*m_id) : nullptr;
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
        m_needs.notes.setOpenNote(id);
    Q_EMIT changed();
    // Close a card before its row moves: destroying the editor in the middle of a move crashes the view.
    if (!m_id)
        m_needs.notes.setOpenNote(std::nullopt);
}

} // namespace vesk
