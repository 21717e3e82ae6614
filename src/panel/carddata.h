// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

namespace vesk {

class Note;

/// What a collapsed card shows of its note, by the role of the list model that asks.
namespace carddata {

/// At most so many checkboxes are shown on a card.
inline constexpr qsizetype kMaximumItems = 3;

[[nodiscard]] QString title(const Note &note);
/// Empty for a note with checkboxes, which are shown instead.
[[nodiscard]] QString preview(const Note &note);
[[nodiscard]] QStringList itemTexts(const Note &note);
[[nodiscard]] QList<bool> itemsDone(const Note &note);
/// The line numbers of the items that are shown.
[[nodiscard]] QList<int> itemLines(const Note &note);
/// How many checkboxes are not shown.
[[nodiscard]] int furtherItems(const Note &note);

} // namespace carddata
} // namespace vesk
