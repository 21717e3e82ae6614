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
    /// What the line says, without its marker.
    QString text;
    bool isDone = false;

    friend bool operator==(const ChecklistItem &, const ChecklistItem &) = default;
};

/// How far a checklist is: `done` of `total`, which is at least 1.
struct Progress
{
    qsizetype done = 0;
    qsizetype total = 0;

    friend bool operator==(const Progress &, const Progress &) = default;
};

/// The line markup that a note's text is written in: its grammar, and the rules that read and
/// rewrite it. Pure functions of strings; all comparisons are of exact code points.
namespace markup {

// Every marker stands at the start of a line and ends in one space.
inline constexpr QStringView kUnticked = u"\u2610 ";
inline constexpr QStringView kTicked = u"\u2611 ";
inline constexpr QStringView kBullet = u"\u2022 ";
inline constexpr QStringView kHeading = u"# ";
/// Stands before and after a bold span, anywhere in a line.
inline constexpr QStringView kBold = u"**";

/// What is typed at the start of a line for a marker, in the order in which they are tried.
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

/// The lines between line feeds, each without the white space at its ends; one for an empty text.
[[nodiscard]] QStringList lines(const QString &text);
/// What is shown of a trimmed line: without its markers and bold marks.
[[nodiscard]] QString displayText(const QString &line);
/// The text of every non-empty line as an unticked checkbox line; empty if there is none.
[[nodiscard]] QString checklist(const QString &text);
/// Turns the typed forms at the start of every line but the first into markers.
[[nodiscard]] QString expandMarkup(const QString &text);
/// Drops empty lines and checkboxes with nothing after them.
[[nodiscard]] QString cleanChecklist(const QString &text);

/// What the first non-empty line says; empty if there is none.
[[nodiscard]] QString title(const QString &text);
/// What the other non-empty lines say, joined by " · "; empty if there are none.
[[nodiscard]] QString preview(const QString &text);
/// The checkbox lines, in order.
[[nodiscard]] QList<ChecklistItem> checklistItems(const QString &text);
/// None if there is no checkbox line. Does not build the items.
[[nodiscard]] std::optional<Progress> progress(const QString &text);
/// Whether there is nothing but white space and line breaks.
[[nodiscard]] bool isBlank(const QString &text);

/// The text with the box of that line ticked or unticked; unchanged if the line has no box or does
/// not exist.
[[nodiscard]] QString toggledItem(const QString &text, qsizetype line);
/// The text with `added` as checkboxes after its last checkbox, or at its end.
[[nodiscard]] QString withChecklistItems(const QString &text, const QString &added);
/// The text with `added` at its end: as checkboxes if it ends in one, else after an empty line.
[[nodiscard]] QString appended(const QString &text, const QString &added);

/// Without white space and line breaks at both ends.
[[nodiscard]] QString trimmed(const QString &text);
/// With every lone surrogate replaced by U+FFFD, so that the text can be written as UTF-8.
[[nodiscard]] QString wellFormed(const QString &text);

} // namespace markup
} // namespace vesk
