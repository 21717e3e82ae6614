// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

namespace vesk {

/// As much of a line as fits within a width, in points, followed by an ellipsis. Punctuation before the
/// ellipsis, such as a full stop or a comma, is dropped.
[[nodiscard]] QString cutOff(QStringView line, const QFont &font, qreal width);

} // namespace vesk
