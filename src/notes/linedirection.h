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

} // namespace vesk
