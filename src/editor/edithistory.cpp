// SPDX-License-Identifier: MIT
#include "editor/edithistory.h"

#include <algorithm>

namespace vesk {

namespace {

/// A pause that ends a step, in milliseconds.
constexpr quint64 kPause = 1500;

bool startsWord(const QString &before, const QString &typed)
{
    return before.back().isSpace() && !typed.front().isSpace();
}

qsizetype endOf(const Splice &change)
{
    return change.position + change.inserted.size();
}

bool isInsertedAfter(const Splice &change, const Splice &last)
{
    return change.removed.isEmpty() && !last.inserted.isEmpty() && change.position == endOf(last);
}

/// Some programs send the halves of a surrogate pair separately.
bool completesCharacter(const Splice &change, const Splice &last)
{
    return isInsertedAfter(change, last) && last.inserted.back().isHighSurrogate()
           && change.inserted.front().isLowSurrogate();
}

bool isRemovedBeside(const Splice &change, const Splice &last)
{
    const bool isBackwards = change.position + change.removed.size() == last.position;
    return change.inserted.isEmpty() && last.inserted.isEmpty()
           && (isBackwards || change.position == last.position);
}

/// Whether a text replaces what was selected when its composition began and perhaps, as a marker does, text
/// before that.
bool replacesRemoved(const Splice &change, const Splice &last)
{
    return last.inserted.isEmpty() && change.position + change.removed.size() == last.position;
}

} // namespace

void EditHistory::record(const Step &step, Kind kind, quint64 time)
{
    m_steps.resize(m_done);
    if (continuesLast(step, kind, time))
        join(step);
    else
        m_steps.append(step);
    const Splice &last = m_steps.constLast().change;
    m_open.reset();
    if (last.removed == last.inserted)
        m_steps.removeLast(); // The same text that was selected has been written again.
    else if (kind == Kind::Typing || (kind == Kind::Composing && last.inserted.isEmpty()))
        m_open = kind;
    m_done = m_steps.size();
    m_time = time;
}

bool EditHistory::continuesLast(const Step &step, Kind kind, quint64 time) const
{
    if (m_steps.isEmpty())
        return false;
    const Splice &change = step.change;
    const Splice &last = m_steps.constLast().change;
    if (completesCharacter(change, last))
        return true;
    if (!m_open || m_steps.constLast().after != step.before)
        return false;
    if (m_open == Kind::Composing)
        return replacesRemoved(change, last);
    return kind == Kind::Typing && time <= m_time + kPause
           && (isRemovedBeside(change, last)
               || (isInsertedAfter(change, last) && !startsWord(last.inserted, change.inserted)));
}

void EditHistory::join(const Step &step)
{
    const Splice &change = step.change;
    Splice &last = m_steps.last().change;
    if (change.removed.isEmpty()) {
        last.inserted += change.inserted;
    } else if (change.position < last.position) {
        last.removed.prepend(change.removed);
        last.inserted = change.inserted;
        last.position = change.position;
    } else {
        last.removed += change.removed;
    }
    m_steps.last().after = step.after;
}

std::optional<EditHistory::Step> EditHistory::undo()
{
    m_open.reset();
    if (!canUndo())
        return std::nullopt;
    --m_done;
    return m_steps.at(m_done);
}

std::optional<EditHistory::Step> EditHistory::redo()
{
    m_open.reset();
    if (!canRedo())
        return std::nullopt;
    ++m_done;
    return m_steps.at(m_done - 1);
}

void EditHistory::clear()
{
    m_steps.clear();
    m_done = 0;
    m_open.reset();
}

} // namespace vesk
