// SPDX-License-Identifier: MIT
#pragma once

#include "input/keysreport.h"

#include <QByteArray>

namespace vesk {

/// Formats one line per combination, in columns: its keys, whether it works, the command and what it does.
[[nodiscard]] QByteArray keysAsLines(const KeysReport &report);

/// Formats the combinations as a JSON array of objects. Only those that are taken have `takenBy`.
[[nodiscard]] QByteArray keysAsJson(const KeysReport &report);

} // namespace vesk
