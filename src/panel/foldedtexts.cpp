// SPDX-License-Identifier: MIT
#include "panel/foldedtexts.h"

#include "notes/note.h"
#include "panel/searchtext.h"

namespace vesk {

namespace {

/// Stands between a text and its source; in no UTF-8 text, so that nothing is found across it.
constexpr char kBetween = '\xff';

} // namespace

bool FoldedTexts::contains(const Note &note, const QByteArray &query)
{
    return query.isEmpty() || find(note).contains(query);
}

std::optional<bool> FoldedTexts::contains(const RecordId &id, const QByteArray &query) const
{
    const auto found = m_texts.constFind(id);
    return found == m_texts.constEnd() ? std::nullopt : std::optional(found->contains(query));
}

QByteArray &FoldedTexts::find(const Note &note)
{
    QByteArray &folded = m_texts[note.id()];
    if (folded.isNull()) {
        folded = searchtext::folded(note.utf8Text());
        if (const std::optional<QString> &source = note.sourceApp())
            folded += kBetween + searchtext::folded(*source);
    }
    return folded;
}

} // namespace vesk
