// SPDX-License-Identifier: MIT
#pragma once

#include <bitset>

namespace vesk {

class X11Connection;

/// Which keys are down, by their key codes.
using KeyStates = std::bitset<256>;

/// The keys that are down on the server now, asked for and waited for; none if it does not answer.
[[nodiscard]] KeyStates keysDown(const X11Connection &connection);

} // namespace vesk
