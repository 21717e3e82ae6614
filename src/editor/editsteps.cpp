// SPDX-License-Identifier: MIT
#include "editor/editsteps.h"

#include "editor/edititem.h"
#include "editor/notetext.h"

#include <QScopedValueRollback>

namespace vesk {

EditSteps::EditSteps(const EditItem &edit, NoteText &text)
    : m_edit(edit)
    , m_text(text)
{
}

void EditSteps::edit(qsizetype position, qsizetype length, const QString &text, const Selection &after)
{
    m_before = m_edit.selection();
    m_after = after;
    m_kind = EditHistory::Kind::Single;
    m_text.replace(position, length, text);
}

void EditSteps::replaceSelection(const QString &text)
{
    const Selection selection = m_edit.selection();
    if (!text.isEmpty())
        edit(selection.start(), selection.length(), text, Selection::at(selection.start() + text.size()));
}

void EditSteps::undo()
{
    if (m_edit.isComposing())
        return;
    if (const std::optional<EditHistory::Step> step = m_history.undo()) {
        const Splice &change = step->change;
        replay({.position = change.position, .removed = change.inserted, .inserted = change.removed},
               step->before);
    }
}

void EditSteps::redo()
{
    if (m_edit.isComposing())
        return;
    if (const std::optional<EditHistory::Step> step = m_history.redo())
        replay(step->change, step->after);
}

void EditSteps::replay(const Splice &change, const Selection &after)
{
    const QScopedValueRollback replaying(m_isReplaying, true);
    m_after = after;
    m_text.replace(change.position, change.removed.size(), change.inserted);
}

void EditSteps::beforeEvent()
{
    m_before = m_edit.selection();
}

void EditSteps::beforeKey(quint64 time)
{
    beforeEvent();
    m_time = time;
}

void EditSteps::record(const Splice &change)
{
    const Selection after = m_after.value_or(m_edit.selection());
    if (m_after)
        m_edit.select(after);
    if (!m_isReplaying)
        m_history.record({.change = change, .before = m_before, .after = after}, m_kind, m_time);
    m_before = after;
    m_after.reset();
    m_kind = EditHistory::Kind::Typing;
}

} // namespace vesk
