// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <optional>

namespace vesk {

/// The reading direction of a line of a note: that of its first character with a strong direction, as in rule
/// P2 of the Unicode bidirectional algorithm. Markers are neutral and never decide. nullopt if no character
/// has a direction; the line then follows the previous line, and the first line follows the interface. Both
/// the editor and the cards lay out lines by this rule.
[[nodiscard]] std::optional<Qt::LayoutDirection> lineDirection(QStringView line);
/// The direction of raw line `line` (counted from 0), or of the nearest line above that has one; nullopt if
/// there is none.
[[nodiscard]] std::optional<Qt::LayoutDirection> lineDirection(QStringView text, qsizetype line);

} // namespace vesk
