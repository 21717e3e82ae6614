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

/// The texts and sources of notes as they are searched, each folded once until its note changes or
/// all are forgotten.
class FoldedTexts final
{
public:
    /// Whether a note's text or the name of its source contains a query that was folded by
    /// `searchtext::folded`.
    [[nodiscard]] bool contains(const Note &note, const QByteArray &query);
    /// The same for a note that was folded before; none if it was not.
    [[nodiscard]] std::optional<bool> contains(const RecordId &id, const QByteArray &query) const;
    /// Folds a note ahead of the first search.
    void prepare(const Note &note) { find(note); }

    void forget(const RecordId &id) { m_texts.remove(id); }
    /// Gives all memory back.
    void forgetAll();

private:
    using Text = std::pmr::string;

    const Text &find(const Note &note);

    /// The texts lie close to each other, so that what they took is whole pages again once they are gone.
    std::pmr::unsynchronized_pool_resource m_pool;
    /// A search looks each note up, in no order that a cache knows: a table without nodes saves it a wait.
    QHash<RecordId, Text> m_texts;
};

} // namespace vesk
