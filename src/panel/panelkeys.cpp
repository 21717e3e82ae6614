// SPDX-License-Identifier: MIT
// The part of the panel's model that takes key presses. What a key means stands in the key map.
#include "notes/notesstore.h"
#include "panel/panelkeymap.h"
#include "panel/panelmodel.h"
#include "platform/application.h"

#include <QKeyEvent>

namespace vesk {

bool PanelModel::handleKey(const QKeyEvent &event)
{
    if (m_isEditing || m_isComposing || m_guide.isShown())
        return false;
    if (m_activeField != Field::None && event.matches(QKeySequence::Paste)) {
        Q_EMIT fieldPasteRequested();
        return true;
    }
    const PanelAction action = panelAction(
        event.key(), event.modifiers(),
        {.field = m_activeField, .isNoteOpen = m_expanded.has_value(), .isSearching = !m_search.isEmpty()});
    if (action == PanelAction::OpenSelected && m_isOnControl)
        return false;
    return perform(action, event.key());
}

bool PanelModel::perform(PanelAction action, int key)
{
    switch (action) {
    case PanelAction::Pass:
        return false;
    case PanelAction::WriteNote:
        requestField(Field::Composer);
        return true;
    case PanelAction::Search:
        requestField(Field::Search);
        return true;
    case PanelAction::MoveSelection:
        if (m_activeField == Field::Search || m_isOnControl)
            requestField(Field::None);
        moveFocus(key == Qt::Key_Down ? 1 : -1);
        return true;
    case PanelAction::DeleteSelected:
        return deleteSelected();
    case PanelAction::CloseNote:
        collapse();
        return true;
    case PanelAction::HidePanel:
        m_application.hide();
        return true;
    case PanelAction::ClearSearch:
        setSearch({});
        return true;
    case PanelAction::LeaveField:
        requestField(Field::None);
        return true;
    case PanelAction::OpenFound:
        return openFound();
    case PanelAction::CommitDraft:
        commitDraft();
        return true;
    case PanelAction::BreakLine:
        Q_EMIT lineBreakRequested();
        return true;
    case PanelAction::OpenSelected:
        return openSelected();
    case PanelAction::PasteSelected:
        return pasteSelected();
    }
    Q_UNREACHABLE();
}

bool PanelModel::openFound()
{
    const SectionedListModel &list = currentList();
    std::optional<RecordId> target = m_focused;
    if (!target || !list.visibleIndex(*target))
        target = list.visibleCount() > 0 ? std::optional(list.visibleAt(0)) : std::nullopt;
    if (!target)
        return false;
    if (const Note *note = m_store.findNote(*target)) {
        open(*note);
        return true;
    }
    Prompt *prompt = m_store.findPrompt(*target);
    if (!prompt)
        return false;
    requestField(Field::None);
    setFocused(target);
    toggleDone(*prompt);
    return true;
}

bool PanelModel::openSelected()
{
    if (!m_focused)
        return false;
    if (const Note *note = m_store.findNote(*m_focused)) {
        open(*note);
        return true;
    }
    Prompt *prompt = m_store.findPrompt(*m_focused);
    if (prompt)
        toggleDone(*prompt);
    return prompt != nullptr;
}

bool PanelModel::deleteSelected()
{
    if (!m_focused)
        return false;
    if (Note *note = m_store.findNote(*m_focused)) {
        deleteNote(*note);
        return true;
    }
    Prompt *prompt = m_store.findPrompt(*m_focused);
    if (prompt)
        deletePrompt(*prompt);
    return prompt != nullptr;
}

bool PanelModel::pasteSelected()
{
    return m_focused && m_cards.pasteBack(*m_focused);
}

} // namespace vesk
