// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <optional>

namespace vesk {

/// The direction in which a line of a note is read: that of its first letter that has one, as the Unicode
/// bidirectional algorithm decides it (P2). Markers have none, so they never decide. nullopt if no
/// character has a direction; the line then follows the one before it, and the first line follows the
/// interface. The editor and the cards both lay out lines by this rule.
[[nodiscard]] std::optional<Qt::LayoutDirection> lineDirection(QStringView line);
/// The direction of the raw line with this number, counted from 0, or of the last one before it that has
/// one; nullopt if there is none.
[[nodiscard]] std::optional<Qt::LayoutDirection> lineDirection(QStringView text, qsizetype line);

} // namespace vesk
