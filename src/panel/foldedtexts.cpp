// SPDX-License-Identifier: MIT
#include "panel/foldedtexts.h"

#include "notes/note.h"
#include "panel/searchtext.h"

#include <string_view>

namespace vesk {

namespace {

/// Separates a text from its source. Cannot occur in UTF-8, so no match spans it.
constexpr char kBetween = '\xff';

std::string_view view(const QByteArray &bytes)
{
    return {bytes.constData(), static_cast<size_t>(bytes.size())};
}

/// Several times as fast as Qt's own search for short queries, which most are.
bool isIn(std::string_view text, const QByteArray &query)
{
    return text.find(view(query)) != std::string_view::npos;
}

} // namespace

bool FoldedTexts::contains(const Note &note, const QByteArray &query)
{
    return query.isEmpty() || isIn(find(note), query);
}

std::optional<bool> FoldedTexts::contains(const RecordId &id, const QByteArray &query) const
{
    const auto found = m_texts.constFind(id);
    return found == m_texts.constEnd() ? std::nullopt : std::optional(isIn(*found, query));
}

const FoldedTexts::Text &FoldedTexts::find(const Note &note)
{
    if (const auto known = m_texts.constFind(note.id()); known != m_texts.constEnd())
        return *known;
    QByteArray folded = searchtext::folded(note.utf8Text());
    if (const std::optional<QString> &source = note.sourceApp())
        folded += kBetween + searchtext::folded(*source);
    return *m_texts.emplace(note.id(), view(folded), &m_pool);
}

void FoldedTexts::forgetAll()
{
    m_texts = {};
    m_pool.release();
}

} // namespace vesk
