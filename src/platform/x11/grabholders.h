// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace vesk {

class X11Connection;

/// The other programs that have keys or buttons for themselves, by the names that the user knows. The
/// server tells who has such grabs, not for which keys; where so many have some that a name says nothing,
/// the list is empty.
[[nodiscard]] QStringList grabHolders(const X11Connection &connection);

} // namespace vesk
