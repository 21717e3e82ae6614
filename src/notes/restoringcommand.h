// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QString>

namespace vesk {

/// For a shell: sets what is left of the store aside and puts a copy in its place. Copies first and moves
/// after, so that a step that fails, on a full disk or otherwise, leaves either the old file or the whole
/// new one in place; the command can then be run again. Once it has succeeded it does nothing more, even
/// if the store has changed since. `now` tells this command from one for a later damage.
[[nodiscard]] QString restoringCommand(const QString &store, const QString &copy, Date now);

} // namespace vesk
