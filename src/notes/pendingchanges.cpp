// SPDX-License-Identifier: MIT
#include "notes/pendingchanges.h"

namespace vesk {

void PendingChanges::addRemoved(RecordKind kind, const RecordId &id)
{
    const auto number = m_numbers.constFind(id);
    if (number != m_numbers.cend() && !m_changes.at(*number).isStored) {
        m_changes.erase(*number);
        m_numbers.erase(number);
        return;
    }
    add({.kind = kind, .id = id, .isStored = true});
}

void PendingChanges::setMaybeStored()
{
    for (auto &[number, change] : m_changes)
        change.isStored = true;
}

void PendingChanges::clear()
{
    m_changes.clear();
    m_numbers.clear();
}

void PendingChanges::add(const Change &change)
{
    if (m_numbers.contains(change.id))
        return;
    m_numbers.insert(change.id, m_nextNumber);
    m_changes.emplace(m_nextNumber, change);
    ++m_nextNumber;
}

} // namespace vesk
