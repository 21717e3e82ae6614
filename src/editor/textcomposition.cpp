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
    // Remove the composed text first, without a replacement.
    QInputMethodEvent rest(event.preeditString(), event.attributes());
    deliver(rest);
    if (commit == u"\n")
        m_keys.typeLineBreak();
    else if (!m_keys.typeSpace())
        m_steps.edit(m_edit.selection().caret, 0, commit, Selection::at(m_edit.selection().caret + 1));
    return true;
}

bool TextComposition::replaceWholeCharacters(const QInputMethodEvent &event)
{
    const auto whole = editrules::wholeCharacters(m_text.text(), m_edit.selection(),
                                                  {event.replacementStart(), event.replacementLength()});
    if (!whole)
        return false;
    QInputMethodEvent replacing(event.preeditString(), event.attributes());
    replacing.setCommitString(event.commitString(), whole->start, whole->length);
    deliver(replacing);
    return true;
}

void TextComposition::deliver(QInputMethodEvent &event)
{
    m_edit.item()->removeEventFilter(&m_view);
    QCoreApplication::sendEvent(m_edit.item(), &event);
    m_edit.item()->installEventFilter(&m_view);
}

} // namespace vesk
