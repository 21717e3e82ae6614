// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace vesk {

/// Carries out `vesk access allow|deny|status`, which sets or prints the user's consent. A running Vesk
/// follows at once. `arguments` are the words after "access". Returns the exit status: 0 for success, 1 if
/// `status` finds that reading is not allowed, 2 if the arguments are wrong.
[[nodiscard]] int runAccessCommand(const QStringList &arguments);

} // namespace vesk
