// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QByteArray>
#include <QHash>

#include <memory_resource>
#include <optional>
#include <string>

namespace vesk {

class Note;

/// The searchable form of the notes' texts and sources, each folded once until its note changes or everything
/// is forgotten.
class FoldedTexts final
{
public:
    /// Whether a note's text or the name of its source contains a query that was folded with
    /// `searchtext::folded`.
    [[nodiscard]] bool contains(const Note &note, const QByteArray &query);
    /// The same for a note that has already been folded; nullopt if it has not.
    [[nodiscard]] std::optional<bool> contains(const RecordId &id, const QByteArray &query) const;
    /// Folds a note ahead of the first search.
    void prepare(const Note &note) { find(note); }

    void forget(const RecordId &id) { m_texts.remove(id); }
    /// Releases all memory.
    void forgetAll();

private:
    using Text = std::pmr::string;

    const Text &find(const Note &note);

    /// Keeps the texts close together, so that whole pages become free once they are gone.
    std::pmr::unsynchronized_pool_resource m_pool;
    /// A search looks up each note in random order: a table without nodes avoids a cache miss per note.
    QHash<RecordId, Text> m_texts;
};

} // namespace vesk
