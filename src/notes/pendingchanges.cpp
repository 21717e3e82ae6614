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

bool PendingChanges::settle(const QSet<quint64> &refused)
{
    bool areOld = true;
    for (auto it = m_changes.begin(); it != m_changes.end();) {
        auto &[number, change] = *it;
        if (refused.contains(number)) {
            areOld = areOld && change.isRefused;
            change.isRefused = true;
            ++it;
        } else {
            m_numbers.remove(change.id);
            it = m_changes.erase(it);
        }
    }
    return areOld;
}

void PendingChanges::clear()
{
    m_changes.clear();
    m_numbers.clear();
}

void PendingChanges::add(const Change &change)
{
    const auto number = m_numbers.constFind(change.id);
    if (number != m_numbers.cend()) {
        m_changes.at(*number).isRefused = false;
        return;
    }
    m_numbers.insert(change.id, m_nextNumber);
    m_changes.emplace(m_nextNumber, change);
    ++m_nextNumber;
}

} // namespace vesk
