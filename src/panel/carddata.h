// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

namespace vesk {

class Note;

/// What a card shows of its note, by the role of the list model that asks.
namespace carddata {

/// At most so many checkboxes are shown on a card.
inline constexpr qsizetype kMaximumItems = 3;

[[nodiscard]] QString title(const Note &note);
/// Empty for a note with checkboxes, which are shown instead.
[[nodiscard]] QString preview(const Note &note);
[[nodiscard]] QStringList itemTexts(const Note &note);
[[nodiscard]] QList<bool> itemsDone(const Note &note);
/// Whether each item is read from right to left, as the note's editor shows it.
[[nodiscard]] QList<bool> itemsRightToLeft(const Note &note);
/// The line numbers of the items that are shown.
[[nodiscard]] QList<int> itemLines(const Note &note);
/// How many checkboxes are not shown.
[[nodiscard]] int furtherItems(const Note &note);

/// What a closed card says besides the title, for those who do not see it. `time` is how long ago the
/// note was changed, in words.
[[nodiscard]] QString spoken(const Note &note, const QString &time);

/// What the button of an open card says that leads back to the note's source: the title of the window,
/// or the application. Empty for a note without a source.
[[nodiscard]] QString sourceLabel(const Note &note);
/// Where that button leads: an address, or the opening of an application.
[[nodiscard]] QString sourceTip(const Note &note);

} // namespace carddata
} // namespace vesk
