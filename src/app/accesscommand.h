// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace vesk {

/// `vesk access allow|deny|status`: the user's consent, for scripts. A running Vesk follows at once.
/// `arguments` are those after "access". Returns the program's exit status: 0 if done; for status also
/// 0 if allowed and 1 if not; 2 if the arguments are wrong.
[[nodiscard]] int runAccessCommand(const QStringList &arguments);

} // namespace vesk
