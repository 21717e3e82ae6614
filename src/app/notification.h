// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace vesk {

/// Has the desktop show a notification, for when there can be no window of our own. Waits for it to be
/// taken, for a second at most; does nothing where nobody shows notifications.
void notifyUser(const QString &summary, const QString &body);

} // namespace vesk
