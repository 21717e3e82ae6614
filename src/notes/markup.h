// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <array>
#include <optional>

namespace vesk {

/// One checkbox line of a note.
struct ChecklistItem
{
    /// Line number among the raw lines of the text, from 0; the item's identity.
    qsizetype line = 0;
    /// The line's text without its marker.
    QString text;
    bool isDone = false;

    friend bool operator==(const ChecklistItem &, const ChecklistItem &) = default;
};

/// The progress of a checklist: `done` of `total`, where `total` is at least 1.
struct Progress
{
    qsizetype done = 0;
    qsizetype total = 0;

    friend bool operator==(const Progress &, const Progress &) = default;
};

/// The line markup of a note's text: its grammar, and the rules that read and rewrite it. Pure functions of
/// strings; all comparisons are by exact code points.
namespace markup {

// Every marker stands at the start of a line and ends in one space.
inline constexpr QStringView kUnticked = u"\u2610 ";
inline constexpr QStringView kTicked = u"\u2611 ";
inline constexpr QStringView kBullet = u"\u2022 ";
inline constexpr QStringView kHeading = u"# ";
/// Encloses a bold span anywhere in a line.
inline constexpr QStringView kBold = u"**";

/// What the user types at the start of a line to get a marker, in the order in which the forms are tried.
struct TypedForm
{
    QStringView typed;
    QStringView marker;
};
inline constexpr std::array<TypedForm, 5> kTypedForms{{
    {.typed = u"[] ", .marker = kUnticked},
    {.typed = u"[ ] ", .marker = kUnticked},
    {.typed = u"[x] ", .marker = kTicked},
    {.typed = u"- ", .marker = kBullet},
    {.typed = u"* ", .marker = kBullet},
}};

/// The lines of the text, each with white space trimmed from both ends; a single line for an empty text.
[[nodiscard]] QStringList lines(const QString &text);
/// What is displayed for a trimmed line: the line without its markers and bold marks.
[[nodiscard]] QString displayText(const QString &line);
/// Every non-empty line as an unticked checkbox line; empty if there is none.
[[nodiscard]] QString checklist(const QString &text);
/// Replaces typed forms with markers at the start of every line except the first.
[[nodiscard]] QString expandMarkup(const QString &text);
/// Drops empty lines and checkboxes without text.
[[nodiscard]] QString cleanChecklist(const QString &text);

/// The display text of the first non-empty line; empty if there is none.
[[nodiscard]] QString title(const QString &text);
/// The display text of the other non-empty lines, joined by " · "; empty if there are none.
[[nodiscard]] QString preview(const QString &text);
/// The checkbox lines, in order.
[[nodiscard]] QList<ChecklistItem> checklistItems(const QString &text);
/// nullopt if there is no checkbox line. Does not build the items.
[[nodiscard]] std::optional<Progress> progress(const QString &text);
/// Whether the text consists only of white space and line breaks.
[[nodiscard]] bool isBlank(const QString &text);

/// The text with the checkbox of that line toggled; unchanged if the line has no checkbox or does not exist.
[[nodiscard]] QString toggledItem(const QString &text, qsizetype line);
/// The text with `added` inserted as checkboxes after its last checkbox, or at its end.
[[nodiscard]] QString withChecklistItems(const QString &text, const QString &added);
/// The text with `added` at its end: as checkboxes if the text ends in one, otherwise after an empty line.
[[nodiscard]] QString appended(const QString &text, const QString &added);

/// Without white space and line breaks at both ends.
[[nodiscard]] QString trimmed(const QString &text);
/// The text with every lone surrogate replaced by U+FFFD, so that it can be written as UTF-8.
[[nodiscard]] QString wellFormed(const QString &text);

} // namespace markup
} // namespace vesk
