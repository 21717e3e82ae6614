// SPDX-License-Identifier: MIT
#include "editor/notetextkeys.h"

#include "editor/edititem.h"
#include "editor/editrules.h"
#include "editor/editsteps.h"
#include "editor/notetext.h"
#include "editor/notetextview.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QTextBlock>
#include <QTextDocument>

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

bool isTyping(const QKeyEvent &event)
{
    return (!event.text().isEmpty() && event.text().front().isPrint()
            && !(event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)))
           || event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete || event.key() == Qt::Key_Tab;
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
    if (m_edit.isComposing()) {
        // The input method lets through what it has no use for. A letter follows what was composed so
        // far; any other key would tear it apart.
        if (!isTyping(event) || event.text().isEmpty() || !event.text().front().isPrint()) {
            event.accept();
            return true;
        }
        QGuiApplication::inputMethod()->commit();
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
    if (event.matches(QKeySequence::Undo))
        m_view.undo();
    else if (isRedo(event))
        m_view.redo();
    else if (event.matches(QKeySequence::Cut))
        m_view.cut();
    else if (event.matches(QKeySequence::Copy))
        m_view.copy();
    else if (event.matches(QKeySequence::Paste))
        m_view.paste();
    else if (isChecklist(event))
        m_view.toggleLinePrefix(QStringLiteral(u"\u2610 "));
    else if (event.key() == Qt::Key_Escape && modifiersOf(event) == Qt::NoModifier && m_takesEscape)
        Q_EMIT escaped();
    else if (isMenuKey(event))
        Q_EMIT m_view.contextMenuRequested(m_edit.rectangleOf(m_edit.selection().caret).bottomLeft());
    else if (isTabbingAway(event))
        leaveText(!event.modifiers().testFlag(Qt::ShiftModifier));
    else if (event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete)
        return eraseLineBreak(event);
    else if (event.key() == Qt::Key_Space && !(modifiersOf(event) & ~Qt::ShiftModifier))
        return typeSpace();
    else
        return false;
    return true;
}

bool NoteTextKeys::eraseLineBreak(const QKeyEvent &event)
{
    const Selection selection = m_edit.selection();
    const qsizetype start = selection.caret - (event.key() == Qt::Key_Backspace ? 2 : 0);
    if (modifiersOf(event) != Qt::NoModifier || !selection.isEmpty() || start < 0
        || QStringView(m_text->text()).mid(start, 2) != u"\r\n")
        return false;
    m_steps->edit(start, 2, {}, Selection::at(start));
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
    if (modifiers == kCommand && m_takesCommandReturn) {
        Q_EMIT commandReturned();
        return true;
    }
    if (modifiers & ~Qt::ShiftModifier)
        return false;
    if (m_takesReturn && modifiers == Qt::NoModifier)
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

bool NoteTextKeys::handleInputMethod(const QInputMethodEvent &event)
{
    const QString &commit = event.commitString();
    const bool isRuled = commit == u" " || commit == u"\n";
    if (!isRuled || event.replacementLength() != 0 || !m_edit.selection().isEmpty())
        return false;
    // What was being composed goes first, and is replaced by nothing.
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    m_edit.item()->removeEventFilter(&m_view);
    QCoreApplication::sendEvent(m_edit.item(), &rest);
    m_edit.item()->installEventFilter(&m_view);
    if (commit == u"\n")
        typeLineBreak();
    else if (!typeSpace())
        m_steps->edit(m_edit.selection().caret, 0, commit, Selection::at(m_edit.selection().caret + 1));
    return true;
}

bool NoteTextKeys::typeSpace()
{
    const Selection selection = m_edit.selection();
    if (!selection.isEmpty())
        return false;
    const QTextBlock block = m_text->document().findBlock(static_cast<int>(selection.caret));
    const QStringView before = m_text->line(block).first(selection.caret - block.position());
    const std::optional<editrules::MarkerChange> change = editrules::typedSpace(before);
    if (!change)
        return false;
    m_steps->edit(block.position(), change->length, change->marker.toString(),
                  Selection::at(block.position() + change->marker.size()));
    return true;
}

void NoteTextKeys::typeLineBreak()
{
    using Kind = editrules::LineBreak::Kind;
    const Selection selection = m_edit.selection();
    editrules::LineBreak lineBreak;
    const QTextBlock block = m_text->document().findBlock(static_cast<int>(selection.caret));
    if (selection.isEmpty())
        lineBreak = editrules::typedLineBreak(m_text->line(block));
    if (lineBreak.kind == Kind::EmptyItem) {
        if (m_takesEmptyItemReturn)
            Q_EMIT emptyItemReturned();
        else
            m_steps->edit(block.position(), lineBreak.marker.size(), {}, Selection::at(block.position()));
        return;
    }
    const QString typed = u'\n' + lineBreak.marker.toString();
    m_steps->edit(selection.start(), selection.length(), typed,
                  Selection::at(selection.start() + typed.size()));
}

} // namespace vesk
