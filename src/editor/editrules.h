// SPDX-License-Identifier: MIT
#pragma once

#include "editor/splice.h"

#include <QStringView>

#include <optional>

namespace vesk::editrules {

/// What ends a line in the editor: the line feed and its Unicode kin. A carriage return is a part of
/// its line, as in the rest of the markup.
[[nodiscard]] bool isLineBreak(QChar character);

/// Whether a position is between the two halves of a surrogate pair.
[[nodiscard]] bool isInsidePair(QStringView text, qsizetype position);

/// What an input method replaces, counted from the caret.
struct Replacement
{
    int start = 0;
    int length = 0;
};
/// Input methods that count characters, not UTF-16 units, ask for half an emoji to be replaced. Returns what
/// is to be replaced so that nothing is left of a character; nullopt if `asked` cuts none. The item removes
/// what is selected first, and counts from there.
[[nodiscard]] std::optional<Replacement> wholeCharacters(QString text, const Selection &selected,
                                                         Replacement asked);

/// Makes of the first `length` characters of a line the `marker`, which is empty to remove them.
struct MarkerChange
{
    qsizetype length = 0;
    QStringView marker;

    friend bool operator==(const MarkerChange &, const MarkerChange &) = default;
};

/// What a typed space makes of the line that is `before` the caret; none where it is just a space.
[[nodiscard]] std::optional<MarkerChange> typedSpace(QStringView before);

/// What a line break typed in a line does.
struct LineBreak
{
    enum class Kind {
        /// A line feed and nothing else.
        Plain,
        /// The item has nothing but `marker`, which goes: the list ends here.
        EmptyItem,
        /// A line feed, and `marker` for the next item.
        NextItem,
    };
    Kind kind = Kind::Plain;
    QStringView marker;

    friend bool operator==(const LineBreak &, const LineBreak &) = default;
};
[[nodiscard]] LineBreak typedLineBreak(QStringView line);

/// What a command for `marker` does to a line: gives it the marker in place of another, or takes it away.
[[nodiscard]] MarkerChange toggledPrefix(QStringView line, QStringView marker);

/// Whether the line begins with a box, ticked or not, and whatever follows.
[[nodiscard]] bool startsWithBox(QStringView line);
/// The box that a click makes of this one.
[[nodiscard]] QStringView toggledBox(QChar box);

} // namespace vesk::editrules
