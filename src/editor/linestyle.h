// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QStringView>

namespace vesk {

/// How a part of a line is shown if it is not plain text.
enum class TextStyle {
    Title,
    Heading,
    HeadingMarker,
    Bullet,
    TitleBullet,
    /// An invisible glyph that reserves the space for the circle drawn there.
    Box,
    Done,
    Bold,
    BoldMarks,
};
inline constexpr int kTextStyles = 9;

/// A part of a line, in UTF-16 units from its start. Where parts overlap, the later one adds to or overrides
/// the earlier one.
struct StyledPart
{
    qsizetype start = 0;
    qsizetype length = 0;
    TextStyle style = TextStyle::Title;

    friend bool operator==(const StyledPart &, const StyledPart &) = default;
};

/// The parts of a line that are not plain. `line` must not include its line break.
[[nodiscard]] QList<StyledPart> styledParts(QStringView line, bool isTitle);

/// Whether a line can be the title: whether it contains anything but white space.
[[nodiscard]] bool hasContent(QStringView line);

} // namespace vesk
