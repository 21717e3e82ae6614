// SPDX-License-Identifier: MIT
#pragma once

#include "input/keysreport.h"

#include <QByteArray>

namespace vesk {

/// One line for each combination, in columns: its keys, whether it works, the command and what it does.
[[nodiscard]] QByteArray keysAsLines(const KeysReport &report);

/// The combinations as a JSON array of objects; `takenBy` is there for those that are taken.
[[nodiscard]] QByteArray keysAsJson(const KeysReport &report);

} // namespace vesk
