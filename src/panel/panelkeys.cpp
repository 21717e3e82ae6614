// SPDX-License-Identifier: MIT
// The key map of the panel: the part of its model that takes key presses.
#include "notes/notesstore.h"
#include "panel/panelmodel.h"
#include "platform/application.h"

#include <QKeyEvent>

namespace vesk {

namespace {

/// Command, inside Vesk's own windows.
constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers kCounted =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

} // namespace

bool PanelModel::handleKey(const QKeyEvent &event)
{
    if (m_isComposing)
        return false;
    // The locks and the number pad do not count.
    const Qt::KeyboardModifiers modifiers = event.modifiers() & kCounted;
    const bool isPlain = modifiers == Qt::NoModifier;
    if (m_activeField != Field::None && event.matches(QKeySequence::Paste)) {
        Q_EMIT fieldPasteRequested();
        return true;
    }
    switch (event.key()) {
    case Qt::Key_N:
    case Qt::Key_F:
        if (modifiers != kCommand)
            return false;
        requestField(event.key() == Qt::Key_N ? Field::Composer : Field::Search);
        return true;
    case Qt::Key_Down:
        return isPlain && handleArrow(1);
    case Qt::Key_Up:
        return isPlain && handleArrow(-1);
    case Qt::Key_Backspace:
        return modifiers == kCommand && m_activeField == Field::None && deleteFocused();
    case Qt::Key_Escape:
        return isPlain && handleEscape();
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return handleReturn(modifiers);
    default:
        return false;
    }
}

bool PanelModel::handleArrow(int delta)
{
    if (m_activeField == Field::Composer)
        return false;
    if (m_activeField == Field::Search)
        requestField(Field::None);
    moveFocus(delta);
    return true;
}

bool PanelModel::deleteFocused()
{
    if (!m_focused || !m_store.findNote(*m_focused))
        return false;
    deleteNote(*m_focused);
    return true;
}

bool PanelModel::pasteFocused()
{
    const Note *note = m_focused ? m_store.findNote(*m_focused) : nullptr;
    if (!note)
        return false;
    Q_EMIT pasteRequested(note->text());
    return true;
}

bool PanelModel::handleEscape()
{
    if (m_activeField == Field::None)
        m_application.hide();
    else if (m_activeField == Field::Search && !m_search.isEmpty())
        setSearch({});
    else
        requestField(Field::None);
    return true;
}

bool PanelModel::handleReturn(Qt::KeyboardModifiers modifiers)
{
    if (m_activeField == Field::None)
        return modifiers == kCommand && pasteFocused();
    if (m_activeField != Field::Composer)
        return false;
    if (modifiers == Qt::NoModifier)
        commitDraft();
    else if (modifiers == Qt::ShiftModifier)
        Q_EMIT lineBreakRequested();
    else
        return false;
    return true;
}

} // namespace vesk
