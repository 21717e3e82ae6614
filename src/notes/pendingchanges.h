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

/// Which records differ from the store's file, in the order of the first change of each. What has to
/// be done about one follows from whether it still exists. Owned by the store.
class PendingChanges final
{
public:
    struct Change
    {
        RecordKind kind;
        RecordId id;
        /// Whether the file has this record, or may have it.
        bool isStored;
        /// Whether this change, as it is, could not be written while others could.
        bool isRefused = false;
    };

    void addInserted(RecordKind kind, const RecordId &id)
    {
        add({.kind = kind, .id = id, .isStored = false});
    }
    void addChanged(RecordKind kind, const RecordId &id) { add({.kind = kind, .id = id, .isStored = true}); }
    /// A record that never came into the file is forgotten.
    void addRemoved(RecordKind kind, const RecordId &id);
    /// To be called when a save has failed: a crash may yet bring to light what it wrote, so that from
    /// now on a removal has to be written as well.
    void setMaybeStored();
    /// To be called when the changes are in the file, but for those with the numbers in `refused`. Returns
    /// whether all of these had been refused before, and not changed since.
    [[nodiscard]] bool settle(const QSet<quint64> &refused);

    void clear();

    [[nodiscard]] bool isEmpty() const { return m_changes.empty(); }
    /// By a number that grows; the numbers have gaps.
    [[nodiscard]] const std::map<quint64, Change> &changes() const { return m_changes; }

private:
    /// If the record has changed before, its place stays, and what the file has.
    void add(const Change &change);

    std::map<quint64, Change> m_changes;
    QHash<RecordId, quint64> m_numbers;
    quint64 m_nextNumber = 0;
};

} // namespace vesk
