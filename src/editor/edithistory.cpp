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

} // namespace

void EditHistory::record(const Step &step, Kind kind, quint64 time)
{
    m_steps.resize(m_done);
    if (kind == Kind::Single || !join(step, time)) {
        m_steps.append(step);
        m_done = m_steps.size();
    }
    m_isOpen = kind == Kind::Typing;
    m_time = time;
}

bool EditHistory::join(const Step &step, quint64 time)
{
    if (!m_isOpen || m_steps.isEmpty() || time > m_time + kPause || m_steps.constLast().after != step.before)
        return false;
    Step &last = m_steps.last();
    const Splice &change = step.change;
    if (change.removed.isEmpty() && !last.change.inserted.isEmpty()) {
        if (change.position != last.change.position + last.change.inserted.size()
            || startsWord(last.change.inserted, change.inserted))
            return false;
        last.change.inserted += change.inserted;
    } else if (change.inserted.isEmpty() && last.change.inserted.isEmpty()) {
        const bool isBackwards = change.position + change.removed.size() == last.change.position;
        if (!isBackwards && change.position != last.change.position)
            return false;
        if (isBackwards) {
            last.change.removed.prepend(change.removed);
            last.change.position = change.position;
        } else {
            last.change.removed += change.removed;
        }
    } else {
        return false;
    }
    last.after = step.after;
    return true;
}

std::optional<EditHistory::Step> EditHistory::undo()
{
    m_isOpen = false;
    if (!canUndo())
        return std::nullopt;
    --m_done;
    return m_steps.at(m_done);
}

std::optional<EditHistory::Step> EditHistory::redo()
{
    m_isOpen = false;
    if (!canRedo())
        return std::nullopt;
    ++m_done;
    return m_steps.at(m_done - 1);
}

void EditHistory::clear()
{
    m_steps.clear();
    m_done = 0;
    m_isOpen = false;
}

} // namespace vesk
