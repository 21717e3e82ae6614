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

const QByteArray &FoldedTexts::find(const Note &note)
{
    const auto [found, isNew] = m_texts.try_emplace(note.id());
    QByteArray &folded = found->second;
    if (isNew) {
        folded = searchtext::folded(note.text());
        if (const std::optional<QString> &source = note.sourceApp())
            folded += kBetween + searchtext::folded(*source);
    }
    return folded;
}

} // namespace vesk
