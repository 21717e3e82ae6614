// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QHash>
#include <QSet>

#include <map>

namespace vesk {

enum class RecordKind {
    Note,
    Prompt,
};

/// Which records differ from the store's file, in the order of each one's first change. Whether a record
/// still exists decides whether it is to be written or removed. Owned by the store.
class PendingChanges final
{
public:
    struct Change
    {
        RecordKind kind;
        RecordId id;
        /// Whether the file contains this record, or may contain it.
        bool isStored;
        /// Whether the change in its present form could not be written while others could.
        bool isRefused = false;
    };

    void addInserted(RecordKind kind, const RecordId &id)
    {
        add({.kind = kind, .id = id, .isStored = false});
    }
    void addChanged(RecordKind kind, const RecordId &id) { add({.kind = kind, .id = id, .isStored = true}); }
    /// A record that never reached the file is forgotten.
    void addRemoved(RecordKind kind, const RecordId &id);
    /// Call this when a save has failed: after a crash, its records may turn up in the file all the same, so
    /// from now on a removal must be written as well.
    void setMaybeStored();
    /// Call this when the changes are in the file, except for those with the numbers in `refused`. Returns
    /// whether all of these had been refused before and have not changed since.
    [[nodiscard]] bool settle(const QSet<quint64> &refused);

    void clear();

    [[nodiscard]] bool isEmpty() const { return m_changes.empty(); }
    /// Keyed by an increasing number; there are gaps.
    [[nodiscard]] const std::map<quint64, Change> &changes() const { return m_changes; }

private:
    /// If the record has changed before, it keeps its place and its `isStored`.
    void add(const Change &change);

    std::map<quint64, Change> m_changes;
    QHash<RecordId, quint64> m_numbers;
    quint64 m_nextNumber = 0;
};

} // namespace vesk
