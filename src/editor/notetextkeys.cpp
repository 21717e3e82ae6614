// SPDX-License-Identifier: MIT
#include "editor/notetextkeys.h"

#include "editor/edititem.h"
#include "editor/editkeys.h"
#include "editor/editsteps.h"
#include "editor/notetext.h"
#include "editor/notetextview.h"

#include <QKeyEvent>

namespace vesk {

namespace {

/// Command in Vesk's own windows.
constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers kCounted =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// Without locks and the keypad modifier.
Qt::KeyboardModifiers modifiersOf(const QKeyEvent &event)
{
    return event.modifiers() & kCounted;
}

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isChecklist(const QKeyEvent &event)
{
    return event.key() == Qt::Key_L && modifiersOf(event) == (kCommand | Qt::ShiftModifier);
}

bool isMenuKey(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Menu && modifiersOf(event) == Qt::NoModifier)
           || (event.key() == Qt::Key_F10 && modifiersOf(event) == Qt::ShiftModifier);
}

/// A Tab without modifiers belongs to the text.
bool isTabbingAway(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
           && event.modifiers().testFlag(Qt::ControlModifier);
}

bool isTransfer(const QKeyEvent &event)
{
    return editkeys::isPaste(event) || event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut);
}

} // namespace

NoteTextKeys::NoteTextKeys(NoteTextView &view, const EditItem &edit)
    : m_view(view)
    , m_edit(edit)
{
}

void NoteTextKeys::start(const NoteText &text, EditSteps &steps)
{
    m_text = &text;
    m_steps = &steps;
    m_markup.emplace(m_edit, text, steps);
}

bool NoteTextKeys::handleShortcut(QKeyEvent &event) const
{
    // A key that is accepted here arrives as a key press instead of triggering a shortcut of the window.
    const bool isOurs = m_edit.isComposing() || editkeys::isRedo(event) || isChecklist(event)
                        || (m_takesEscape && event.key() == Qt::Key_Escape)
                        || (m_takesCommandReturn && isReturn(event) && modifiersOf(event) == kCommand);
    if (isOurs)
        event.accept();
    return isOurs;
}

bool NoteTextKeys::handleKey(QKeyEvent &event)
{
    if (isTransfer(event))
        m_edit.endComposing();
    if (editkeys::isLostInComposing(event, m_edit) || editkeys::handle(event, m_edit, *m_text, *m_steps)) {
        event.accept();
        return true;
    }
    if (handleEditingKey(event) || handleReturn(event) || handlePage(event)) {
        event.accept();
        return true;
    }
    return false;
}

bool NoteTextKeys::handleEditingKey(const QKeyEvent &event)
{
    const bool isEscape =
        event.key() == Qt::Key_Escape && modifiersOf(event) == Qt::NoModifier && m_takesEscape;
    if (event.isAutoRepeat() && (isEscape || isChecklist(event)))
        return true;
    if (event.matches(QKeySequence::Cut))
        m_view.cut();
    else if (event.matches(QKeySequence::Copy))
        m_view.copy();
    else if (editkeys::isPaste(event))
        m_view.paste();
    else if (isChecklist(event))
        m_view.toggleLinePrefix(QStringLiteral(u"\u2610 "));
    else if (isEscape)
        Q_EMIT escaped();
    else if (isMenuKey(event))
        Q_EMIT m_view.contextMenuRequested(m_edit.rectangleOf(m_edit.selection().caret).bottomLeft());
    else if (isTabbingAway(event))
        leaveText(!event.modifiers().testFlag(Qt::ShiftModifier));
    else if (event.text() == u" " && !(modifiersOf(event) & ~Qt::ShiftModifier))
        return typeSpace();
    else
        return false;
    return true;
}

void NoteTextKeys::leaveText(bool isForwards)
{
    if (m_takesTabbing) {
        Q_EMIT tabbed(isForwards);
        return;
    }
    if (QQuickItem *next = m_edit.item()->nextItemInFocusChain(isForwards))
        next->forceActiveFocus(isForwards ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

bool NoteTextKeys::handleReturn(const QKeyEvent &event)
{
    if (!isReturn(event))
        return false;
    const Qt::KeyboardModifiers modifiers = modifiersOf(event);
    const bool isForHost = modifiers == kCommand && m_takesCommandReturn;
    if ((modifiers & ~Qt::ShiftModifier) && !isForHost)
        return false;
    const bool isPlainForHost = m_takesReturn && modifiers == Qt::NoModifier;
    const bool isItemForHost = m_takesEmptyItemReturn && m_markup->isInEmptyItem();
    const bool isTyped = !isForHost && !isPlainForHost && !isItemForHost;
    if (event.isAutoRepeat()) {
        // A repeat continues with line breaks. It never starts anything, even if a modifier is released or
        // the key was pressed for another window.
        if (isTyped && m_repeatsLineBreak)
            typeLineBreak();
        return true;
    }
    m_repeatsLineBreak = isTyped;
    if (isForHost)
        Q_EMIT commandReturned();
    else if (isPlainForHost)
        Q_EMIT returned();
    else
        typeLineBreak();
    return true;
}

bool NoteTextKeys::handlePage(const QKeyEvent &event)
{
    const bool isDown = event.key() == Qt::Key_PageDown;
    if ((!isDown && event.key() != Qt::Key_PageUp) || (modifiersOf(event) & ~Qt::ShiftModifier))
        return false;
    const Selection selection = m_edit.selection();
    const QRectF caret = m_edit.rectangleOf(selection.caret);
    const qreal page = std::max(m_view.visibleHeight() - caret.height(), caret.height());
    const qsizetype position = m_edit.positionAt({caret.x(), caret.center().y() + (isDown ? page : -page)});
    const bool isSelecting = modifiersOf(event) == Qt::ShiftModifier;
    m_edit.select({.anchor = isSelecting ? selection.anchor : position, .caret = position});
    return true;
}

void NoteTextKeys::typeLineBreak()
{
    if (m_takesEmptyItemReturn && m_markup->isInEmptyItem()) {
        Q_EMIT emptyItemReturned();
        return;
    }
    m_markup->typeLineBreak();
}

} // namespace vesk
