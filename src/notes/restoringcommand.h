// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QString>

namespace vesk {

/// A shell command that sets the remains of the store aside and puts a copy in its place. It copies first and
/// moves afterwards, so if a step fails, on a full disk or otherwise, either the old file or the complete new
/// one is in place, and the command can be run again. Once it has succeeded it does nothing more, even if the
/// store has changed since. `now` distinguishes this command from one for a later incident.
[[nodiscard]] QString restoringCommand(const QString &store, const QString &copy, Date now);

} // namespace vesk
