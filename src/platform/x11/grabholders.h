// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace vesk {

class X11Connection;

/// Returns the names of the other programs that have passive grabs. The server says who has such grabs, but
/// not on which keys. The list is empty if there are too many for a name to be of help.
[[nodiscard]] QStringList grabHolders(const X11Connection &connection);

} // namespace vesk
