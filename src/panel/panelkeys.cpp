// SPDX-License-Identifier: MIT
#include "panel/panelkeys.h"

#include "editor/editkeys.h"
#include "panel/panelkeymap.h"
#include "panel/panelmodel.h"
#include "platform/application.h"

#include <QKeyEvent>

#include <tuple>

namespace vesk {

namespace {

/// Whether a key types something that a search can begin with; a space is for the focused control.
bool typesText(const QKeyEvent &event)
{
    constexpr Qt::KeyboardModifiers kCommands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return (event.modifiers() & kCommands) == Qt::NoModifier && editkeys::isCharacter(event)
           && !event.text().front().isSpace();
}

} // namespace

PanelKeys::PanelKeys(PanelModel &panel, Application &application)
    : m_panel(panel)
    , m_application(application)
{
}

bool PanelKeys::handle(const QKeyEvent &event)
{
    if (event.isAutoRepeat() && event.key() == m_spentKey)
        return true;
    m_spentKey = 0;
    return handlePress(event);
}

bool PanelKeys::handlePress(const QKeyEvent &event)
{
    PanelKeyboard &keyboard = *m_panel.keyboard();
    if (m_panel.guide()->isShown())
        return false;
    // A user who opens a note and continues typing writes at its end.
    if (m_panel.openNote()->id() && m_panel.editor()->focusIfAwaited())
        return false;
    if (keyboard.isEditing()) {
        // The note's text gets the key, but only if the user can see the effect.
        if (m_panel.selection()->selected() == m_panel.openNote()->id())
            std::ignore = m_panel.selection()->isInSight(CardSelection::Target::Card);
        return false;
    }
    if (keyboard.isComposing())
        return false;
    const PanelAction action = panelAction(event.key(), event.modifiers(),
                                           {.field = keyboard.activeField(),
                                            .isNoteOpen = m_panel.openNote()->id().has_value(),
                                            .isSearching = !m_panel.search().isEmpty()});
    if (event.isAutoRepeat() && !repeats(action))
        return true;
    const bool isForControl =
        keyboard.isOnControl() && (action == PanelAction::OpenSelected || event.key() == Qt::Key_Space);
    if (isForControl)
        return !m_panel.selection()->isInSight(CardSelection::Target::Control);
    if (actsOnSelection(action) && m_panel.selection()->selected()
        && !m_panel.selection()->isInSight(CardSelection::Target::Card))
        return true;
    if (action == PanelAction::Pass && typesText(event) && !keyboard.isInField()
        && !m_panel.openNote()->id()) {
        // A user who opens the panel and types is searching. The field, which now has the focus, also gets
        // the key that started the search.
        keyboard.request(PanelKeyboard::Field::Search);
    }
    const bool isDone = perform(action, event.key());
    if (isDone && !repeats(action))
        m_spentKey = event.key();
    return isDone;
}

bool PanelKeys::perform(PanelAction action, int key)
{
    using Field = PanelKeyboard::Field;
    PanelKeyboard &keyboard = *m_panel.keyboard();
    const std::optional<RecordId> selected = m_panel.selection()->selected();
    switch (action) {
    case PanelAction::Pass:
        return false;
    case PanelAction::WriteNote:
        m_panel.requestField(Field::Composer);
        return true;
    case PanelAction::Search:
        m_panel.requestField(Field::Search);
        return true;
    case PanelAction::MoveSelection:
        if (keyboard.activeField() == Field::Search || keyboard.isOnControl())
            keyboard.request(Field::None);
        m_panel.selection()->move(key == Qt::Key_Down ? 1 : -1);
        return true;
    case PanelAction::DeleteSelected:
        return selected && m_panel.cards()->remove(*selected);
    case PanelAction::CloseNote:
        m_panel.openNote()->close();
        return true;
    case PanelAction::HidePanel:
        m_application.hide();
        return true;
    case PanelAction::ClearSearch:
        m_panel.setSearch({});
        return true;
    case PanelAction::LeaveField:
        keyboard.request(Field::None);
        return true;
    case PanelAction::OpenFound:
        return openFound();
    case PanelAction::CommitDraft:
        m_panel.commitDraft();
        return true;
    case PanelAction::BreakLine:
        Q_EMIT keyboard.lineBreakRequested();
        return true;
    case PanelAction::OpenSelected:
        return selected && m_panel.cards()->activate(*selected);
    case PanelAction::PasteSelected:
        return selected && m_panel.cards()->pasteBack(*selected);
    case PanelAction::NextTab:
    case PanelAction::PreviousTab:
        m_panel.changeTab(action == PanelAction::NextTab);
        return true;
    case PanelAction::ShowMenu:
        if (!keyboard.isInField() && !selected)
            return false;
        if (keyboard.isInField() || m_panel.selection()->isInSight(CardSelection::Target::Card))
            Q_EMIT keyboard.menuRequested();
        return true;
    }
    Q_UNREACHABLE();
}

bool PanelKeys::openFound()
{
    if (!m_panel.selection()->selectSomething())
        return false;
    m_panel.keyboard()->request(PanelKeyboard::Field::None);
    return m_panel.cards()->activate(*m_panel.selection()->selected());
}

} // namespace vesk
