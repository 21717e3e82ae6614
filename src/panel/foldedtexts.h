// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"

#include <QByteArray>

#include <unordered_map>

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
    /// Folds a note ahead of the first search.
    void prepare(const Note &note) { find(note); }

    void forget(const RecordId &id) { m_texts.erase(id); }
    /// Gives all memory back.
    void forgetAll() { m_texts = {}; }

private:
    const QByteArray &find(const Note &note);

    std::unordered_map<RecordId, QByteArray, RecordIdHash> m_texts;
};

} // namespace vesk
