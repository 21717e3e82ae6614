// SPDX-License-Identifier: MIT
#include "editor/editkeys.h"

#include "editor/editedtext.h"
#include "editor/edititem.h"
#include "editor/editsteps.h"
#include "editor/eraserules.h"

#include <QKeyEvent>

namespace vesk::editkeys {

namespace {

constexpr Qt::KeyboardModifiers kCounted =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

Qt::KeyboardModifiers modifiersOf(const QKeyEvent &event)
{
    return event.modifiers() & kCounted;
}

bool isErasing(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Backspace || event.key() == Qt::Key_Delete;
}

bool isTyping(const QKeyEvent &event)
{
    return isCharacter(event) || isErasing(event) || event.key() == Qt::Key_Tab;
}

bool isModifier(const QKeyEvent &event)
{
    return event.key() >= Qt::Key_Shift && event.key() <= Qt::Key_ScrollLock;
}

bool erase(const QKeyEvent &event, const EditItem &edit, const EditedText &text, EditSteps &steps)
{
    const bool isBackwards = event.key() == Qt::Key_Backspace;
    const Qt::KeyboardModifiers ignored = isBackwards ? Qt::ShiftModifier : Qt::NoModifier;
    const Selection selection = edit.selection();
    if ((modifiersOf(event) & ~ignored) || !selection.isEmpty())
        return false;
    const qsizetype caret = selection.caret;
    const qsizetype start = isBackwards ? eraserules::backspaceStart(text.text(), caret) : caret;
    const qsizetype end = isBackwards ? caret : eraserules::deleteEnd(text.text(), caret);
    if (start < end)
        steps.erase(start, end - start);
    return true;
}

} // namespace

bool isCharacter(const QKeyEvent &event)
{
    const QList<uint> text = event.text().toUcs4();
    if (text.isEmpty() || (event.modifiers() & (Qt::ControlModifier | Qt::MetaModifier)))
        return false;
    const QChar::Category category = QChar::category(text.constFirst());
    return QChar::isPrint(text.constFirst()) || category == QChar::Other_Format
           || category == QChar::Other_PrivateUse;
}

bool isPaste(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Paste)
           || (event.key() == Qt::Key_V && modifiersOf(event) == (Qt::ControlModifier | Qt::ShiftModifier));
}

bool isRedo(const QKeyEvent &event)
{
    return event.matches(QKeySequence::Redo)
           || (event.key() == Qt::Key_Y && modifiersOf(event) == Qt::ControlModifier)
           || (event.key() == Qt::Key_Z && modifiersOf(event) == (Qt::ControlModifier | Qt::ShiftModifier));
}

bool isLostInComposing(const QKeyEvent &event, const EditItem &edit)
{
    if (isCharacter(event))
        edit.endComposing();
    return edit.isComposing();
}

bool handle(const QKeyEvent &event, const EditItem &edit, const EditedText &text, EditSteps &steps)
{
    if (!isTyping(event) && !isModifier(event))
        steps.endStep();
    if (event.matches(QKeySequence::Undo))
        steps.undo();
    else if (isRedo(event))
        steps.redo();
    else
        return isErasing(event) && erase(event, edit, text, steps);
    return true;
}

} // namespace vesk::editkeys
