// SPDX-License-Identifier: MIT
#include "editor/editsteps.h"

#include "editor/editedtext.h"
#include "editor/edititem.h"

#include <QScopedValueRollback>

namespace vesk {

namespace {

/// The same change expressed as one that ends at the caret, if the text allows that. For example, an "a" that
/// an input method commits before another "a" is reported as if it had come after it.
Splice endingAt(qsizetype caret, const Splice &change, const QString &text)
{
    const qsizetype length = change.inserted.size();
    const qsizetype start = caret - length;
    const qsizetype passed = change.position - start;
    if (!change.removed.isEmpty() || start < 0 || passed <= 0
        || QStringView(text).mid(start, passed) != QStringView(text).mid(caret, passed))
        return change;
    return {.position = start, .removed = {}, .inserted = text.mid(start, length)};
}

} // namespace

EditSteps::EditSteps(const EditItem &edit, EditedText &text)
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

void EditSteps::erase(qsizetype position, qsizetype length)
{
    m_before = m_edit.selection();
    m_after = Selection::at(position);
    m_kind = EditHistory::Kind::Typing;
    m_text.replace(position, length, {});
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

void EditSteps::beforeKey(quint64 time)
{
    m_before = m_edit.selection();
    m_kind = EditHistory::Kind::Typing;
    m_time = time;
}

void EditSteps::beforeInputMethod()
{
    m_before = m_edit.selection();
    m_kind = EditHistory::Kind::Composing;
}

void EditSteps::record(const Splice &change)
{
    const Selection after = m_after.value_or(Selection::at(m_edit.caret()));
    if (m_after)
        m_edit.select(after);
    if (!m_isReplaying)
        m_history.record(
            {.change = endingAt(after.caret, change, m_text.text()), .before = m_before, .after = after},
            m_kind, m_time);
    m_before = after;
    m_after.reset();
    m_kind = EditHistory::Kind::Typing;
}

} // namespace vesk
