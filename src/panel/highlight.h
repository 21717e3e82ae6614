// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace vesk {

/// A part of a text, in UTF-16 units.
struct TextRange
{
    qsizetype start = 0;
    qsizetype length = 0;

    friend bool operator==(const TextRange &, const TextRange &) = default;
};

/// Where `query` occurs in `text`, ignoring case and diacritics: from the start, without overlaps. A match
/// includes the combining marks of its last letter. Empty for an empty query.
[[nodiscard]] QList<TextRange> matchRanges(const QString &text, const QString &query);

} // namespace vesk
