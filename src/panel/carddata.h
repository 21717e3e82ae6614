// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>

namespace vesk {

class Note;

/// What a card shows of its note, one function per role of the list model.
namespace carddata {

/// The maximum number of checkboxes shown on a card.
inline constexpr qsizetype kMaximumItems = 3;

[[nodiscard]] QString title(const Note &note);
/// Empty for a note with checkboxes, which are shown instead.
[[nodiscard]] QString preview(const Note &note);
[[nodiscard]] QStringList itemTexts(const Note &note);
[[nodiscard]] QList<bool> itemsDone(const Note &note);
/// Whether each item is right-to-left, as in the note's editor.
[[nodiscard]] QList<bool> itemsRightToLeft(const Note &note);
/// The line numbers of the items that are shown.
[[nodiscard]] QList<int> itemLines(const Note &note);
/// The number of checkboxes that are not shown.
[[nodiscard]] int furtherItems(const Note &note);

/// What a screen reader says about a closed card besides the title. `time` is how long ago the note was
/// changed, in words.
[[nodiscard]] QString spoken(const Note &note, const QString &time);

/// The label of an open card's button that leads back to the note's source: the window's title, or the
/// application. Empty for a note without a source.
[[nodiscard]] QString sourceLabel(const Note &note);
/// What that button opens: an address or an application.
[[nodiscard]] QString sourceTip(const Note &note);

} // namespace carddata
} // namespace vesk
