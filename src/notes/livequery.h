// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"
#include "platform/clock.h"

#include <QObject>

#include <algorithm>
#include <vector>

namespace vesk {

/// The signals of a live query. Positions are indexes into the list; when a signal is emitted, the list
/// already contains the change.
class LiveQueryBase : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    void inserted(qsizetype index);
    /// The record is still alive during this signal and is deleted afterwards.
    void removed(qsizetype index, const vesk::RecordId &id);
    /// The record has moved from index `from` to index `to`, and has changed as well.
    void moved(qsizetype from, qsizetype to);
    /// The record at this index has changed and kept its position.
    void changed(qsizetype index);
};

/// All records of one type in the store's order, newest first, kept up to date as they change. Records with
/// the same date are ordered by identity, so the order never depends on history. Positions are found by
/// binary search: a change costs O(log n) comparisons and one shift of pointers.
template <typename Record>
class LiveQuery final : public LiveQueryBase
{
public:
    /// The date by which the list is ordered.
    using Key = Date (Record::*)() const;

    explicit LiveQuery(Key key, QObject *parent = nullptr)
        : LiveQueryBase(parent)
        , m_key(key)
    {
    }

    [[nodiscard]] qsizetype count() const { return static_cast<qsizetype>(m_entries.size()); }
    [[nodiscard]] bool isEmpty() const { return m_entries.empty(); }
    /// `index` must be at least 0 and less than `count`.
    [[nodiscard]] Record &at(qsizetype index) const { return *m_entries[static_cast<size_t>(index)].record; }
    /// The newest record; null if there is none.
    [[nodiscard]] Record *first() const { return isEmpty() ? nullptr : &at(0); }

    // Called by the store only.

    /// Takes over many records at once without signals, when the store is opened.
    void load(const std::vector<Record *> &records)
    {
        m_entries.reserve(records.size());
        for (Record *record : records)
            m_entries.push_back(entryOf(*record));
        std::ranges::sort(m_entries, before);
    }

    void insert(Record &record) { Q_EMIT inserted(place(entryOf(record))); }

    /// `date` is the record's date before its removal.
    void remove(Record &record, Date date)
    {
        Q_EMIT removed(take({.date = date, .record = &record}), record.id());
    }

    /// `oldDate` is the record's date before the change.
    void update(Record &record, Date oldDate)
    {
        const Entry now = entryOf(record);
        if (now.date == oldDate) {
            Q_EMIT changed(indexOf(now));
            return;
        }
        const qsizetype from = take({.date = oldDate, .record = &record});
        const qsizetype to = place(now);
        if (from == to)
            Q_EMIT changed(to);
        else
            Q_EMIT moved(from, to);
    }

private:
    struct Entry
    {
        Date date;
        Record *record;
    };

    static bool before(const Entry &a, const Entry &b)
    {
        return a.date != b.date ? a.date > b.date : a.record->id() < b.record->id();
    }

    [[nodiscard]] Entry entryOf(Record &record) const
    {
        return {.date = (record.*m_key)(), .record = &record};
    }

    [[nodiscard]] qsizetype indexOf(const Entry &entry) const
    {
        return std::ranges::lower_bound(m_entries, entry, before) - m_entries.begin();
    }

    qsizetype place(const Entry &entry)
    {
        const qsizetype index = indexOf(entry);
        m_entries.insert(m_entries.begin() + index, entry);
        return index;
    }

    qsizetype take(const Entry &entry)
    {
        const qsizetype index = indexOf(entry);
        Q_ASSERT(m_entries.at(static_cast<size_t>(index)).record == entry.record);
        m_entries.erase(m_entries.begin() + index);
        return index;
    }

    Key m_key;
    std::vector<Entry> m_entries;
};

} // namespace vesk
