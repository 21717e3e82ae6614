// SPDX-License-Identifier: MIT
#include "editor/textcomposition.h"

#include "editor/edititem.h"
#include "editor/editrules.h"
#include "editor/editsteps.h"
#include "editor/notetext.h"
#include "editor/notetextkeys.h"
#include "editor/notetextview.h"

#include <QCoreApplication>
#include <QInputMethodEvent>

namespace vesk {

TextComposition::TextComposition(NoteTextView &view, const EditItem &edit, const NoteText &text,
                                 EditSteps &steps, NoteTextKeys &keys)
    : m_view(view)
    , m_edit(edit)
    , m_text(text)
    , m_steps(steps)
    , m_keys(keys)
{
}

bool TextComposition::handle(const QInputMethodEvent &event)
{
    m_steps.beforeInputMethod();
    return commitTyped(event) || replaceWholeCharacters(event);
}

bool TextComposition::commitTyped(const QInputMethodEvent &event)
{
    const QString &commit = event.commitString();
    const bool isRuled = commit == u" " || commit == u"\n";
    if (!isRuled || event.replacementLength() != 0 || !m_edit.selection().isEmpty())
        return false;
    // What was being composed goes first, and is replaced by nothing.
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    deliver(rest);
    if (commit == u"\n")
        m_keys.typeLineBreak();
    else if (!m_keys.typeSpace())
        m_steps.edit(m_edit.selection().caret, 0, commit, Selection::at(m_edit.selection().caret + 1));
    return true;
}

/// Input methods that count characters, not UTF-16 units, ask for half an emoji to be replaced.
bool TextComposition::replaceWholeCharacters(const QInputMethodEvent &event)
{
    if (event.replacementLength() <= 0)
        return false;
    // The item removes what is selected first, and counts from there.
    const Selection selection = m_edit.selection();
    QString text = m_text.text();
    text.remove(selection.start(), selection.length());
    const auto cuts = [&](int offset) { return editrules::isInsidePair(text, selection.start() + offset); };
    const int start = event.replacementStart();
    const int end = start + event.replacementLength();
    const int wholeStart = cuts(start) ? start - 1 : start;
    const int wholeEnd = cuts(end) ? end + 1 : end;
    if (wholeStart == start && wholeEnd == end)
        return false;
    QInputMethodEvent whole(event.preeditString(), event.attributes());
    whole.setCommitString(event.commitString(), wholeStart, wholeEnd - wholeStart);
    deliver(whole);
    return true;
}

void TextComposition::deliver(QInputMethodEvent &event)
{
    m_edit.item()->removeEventFilter(&m_view);
    QCoreApplication::sendEvent(m_edit.item(), &event);
    m_edit.item()->installEventFilter(&m_view);
}

} // namespace vesk
