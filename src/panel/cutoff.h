// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

namespace vesk {

/// As much of a line as fits within a width, in points, ended by an ellipsis. What would run into the
/// ellipsis, as a full stop or a comma, is left out.
[[nodiscard]] QString cutOff(QStringView line, const QFont &font, qreal width);

} // namespace vesk
