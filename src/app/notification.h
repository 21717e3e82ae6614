// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// Shows a desktop notification, for when Vesk cannot show a window. Waits at most a second for the
/// notification service. Does nothing if there is none.
void notifyUser(const QString &summary, const QString &body);

} // namespace vesk
