// SPDX-License-Identifier: MIT
#include "editor/notetextkeys.h"

#include "editor/edititem.h"
#include "editor/editsteps.h"
#include "editor/eraserules.h"
#include "editor/notetext.h"
#include "editor/notetextview.h"

#include <QKeyEvent>

namespace vesk {

namespace {

/// Command, inside Vesk's own windows.
constexpr Qt::KeyboardModifiers kCommand = Qt::ControlModifier;
constexpr Qt::KeyboardModifiers kCounted =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// The locks and the number pad do not count.
Qt::KeyboardModifiers modifiersOf(const QKeyEvent &event)
{
    return event.modifiers() & kCounted;
}

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isRedo(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Redo) || (event.key() == Qt::Key_Y && modifiersOf(event) == kCommand)
           || (event.key() == Qt::Key_Z && modifiersOf(event) == (kCommand | Qt::ShiftModifier));
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

/// A tab belongs to the text.
bool isTabbingAway(const QKeyEvent &event)
{
    return (event.key() == Qt::Key_Tab || event.key() == Qt::Key_Backtab)
           && event.modifiers().testFlag(Qt::ControlModifier);
}

/// Whether the key writes a character. Joiners and marks of direction are not printed, but are typed.
bool isCharacter(const QKeyEvent &event)
{
    const QList<uint> text = event.text().toUcs4();
    if (text.isEmpty() || (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)))
        return false;
    const QChar::Category category = QChar::category(text.constFirst());
    return QChar::isPrint(text.constFirst()) || category == QChar::Other_Format
           || category == QChar::Other_PrivateUse;
}

bool isTyping(const QKeyEvent &event)
{
    return isCharacter(event) || event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete
           || event.key() == Qt::Key_Tab;
}

/// Some desktops, and terminals, paste plain text by the second combination.
bool isPaste(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Paste)
           || (event.key() == Qt::Key_V && modifiersOf(event) == (kCommand | Qt::ShiftModifier));
}

bool isTransfer(const QKeyEvent &event)
{
    return isPaste(event) || event.matches(QKeySequence::Copy) || event.matches(QKeySequence::Cut);
}

bool isModifier(const QKeyEvent &event)
{
    return event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_ScrollLock;
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
    // What is accepted here comes as a key press instead of setting off a shortcut of the window.
    const bool isOurs = m_edit.isComposing() || isRedo(event) || isChecklist(event)
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
    if (m_edit.isComposing()) {
        // The input method lets through what it has no use for. A letter follows what was composed so
        // far; any other key would tear it apart.
        if (!isCharacter(event)) {
            event.accept();
            return true;
        }
        m_edit.endComposing();
        m_steps->beforeKey(event.timestamp());
        return false;
    }
    if (!isTyping(event) && !isModifier(event))
        m_steps->endStep();
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
    if (event.matches(QKeySequence::Undo))
        m_view.undo();
    else if (isRedo(event))
        m_view.redo();
    else if (event.matches(QKeySequence::Cut))
        m_view.cut();
    else if (event.matches(QKeySequence::Copy))
        m_view.copy();
    else if (isPaste(event))
        m_view.paste();
    else if (isChecklist(event))
        m_view.toggleLinePrefix(QStringLiteral(u"\u2610 "));
    else if (isEscape)
        Q_EMIT escaped();
    else if (isMenuKey(event))
        Q_EMIT m_view.contextMenuRequested(m_edit.rectangleOf(m_edit.selection().caret).bottomLeft());
    else if (isTabbingAway(event))
        leaveText(!event.modifiers().testFlag(Qt::ShiftModifier));
    else if (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete)
        return erase(event);
    else if (event.text() == u" " && !(modifiersOf(event) & ~Qt::ShiftModifier))
        return typeSpace();
    else
        return false;
    return true;
}

bool NoteTextKeys::erase(const QKeyEvent &event)
{
    const bool isBackwards = event.key() == Qt::Key_Backspace;
    const Qt::KeyboardModifiers ignored = isBackwards ? Qt::ShiftModifier : Qt::NoModifier;
    const Selection selection = m_edit.selection();
    if ((modifiersOf(event) & ~ignored) || !selection.isEmpty())
        return false;
    const qsizetype caret = selection.caret;
    const qsizetype start = isBackwards ? eraserules::backspaceStart(m_text->text(), caret) : caret;
    const qsizetype end = isBackwards ? caret : eraserules::deleteEnd(m_text->text(), caret);
    if (start < end)
        m_steps->erase(start, end - start);
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
        // A repeat goes on with line breaks. It never begins anything, also when a modifier is released, or
        // when the key was pressed for another window.
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
