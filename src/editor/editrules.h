// SPDX-License-Identifier: MIT
#pragma once

#include "editor/splice.h"

#include <QStringView>

#include <optional>

namespace vesk::editrules {

/// Whether the character ends a line in the editor: the line feed and its Unicode relatives. As in the rest
/// of the markup, a carriage return is part of its line.
[[nodiscard]] bool isLineBreak(QChar character);

/// Whether a position is between the two halves of a surrogate pair.
[[nodiscard]] bool isInsidePair(QStringView text, qsizetype position);

/// What an input method replaces, relative to the caret.
struct Replacement
{
    int start = 0;
    int length = 0;
};
/// Input methods that count characters rather than UTF-16 units may ask to replace half an emoji. Returns a
/// range that includes whole characters; nullopt if `asked` does not split any. The item removes the
/// selection first, and counts from there.
[[nodiscard]] std::optional<Replacement> wholeCharacters(QString text, const Selection &selected,
                                                         Replacement asked);

/// Replaces the first `length` characters of the line with `marker`. An empty marker removes them.
struct MarkerChange
{
    qsizetype length = 0;
    QStringView marker;

    friend bool operator==(const MarkerChange &, const MarkerChange &) = default;
};

/// What a typed space does to a line whose text up to the caret is `before`; nullopt if it is an ordinary
/// space.
[[nodiscard]] std::optional<MarkerChange> typedSpace(QStringView before);

/// What a typed line break does in a line.
struct LineBreak
{
    enum class Kind {
        /// A line feed and nothing else.
        Plain,
        /// The item contains only `marker`, which is removed: the list ends here.
        EmptyItem,
        /// A line feed, then `marker` for the next item.
        NextItem,
    };
    Kind kind = Kind::Plain;
    QStringView marker;

    friend bool operator==(const LineBreak &, const LineBreak &) = default;
};
[[nodiscard]] LineBreak typedLineBreak(QStringView line);

/// What a command for `marker` does to a line: adds the marker, replacing any other, or removes it.
[[nodiscard]] MarkerChange toggledPrefix(QStringView line, QStringView marker);

/// Whether the line begins with a checkbox, ticked or not.
[[nodiscard]] bool startsWithBox(QStringView line);
/// The checkbox that a click turns this one into.
[[nodiscard]] QStringView toggledBox(QChar box);

} // namespace vesk::editrules
