// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xinput.h>

#include <bitset>

namespace vesk {

class X11Connection;

/// Which keys are down, by their key codes.
using KeyStates = std::bitset<256>;

/// The keys that are down as applications see them, asked for and waited for; none if the server does not
/// answer. The last device that pressed or released a key decides.
[[nodiscard]] KeyStates keysDown(const X11Connection &connection);

/// The keys that are down on the devices behind the keyboard, whatever applications were told since.
struct HeldKeys
{
    /// On the keyboards themselves: under a finger of the user's.
    KeyStates byUser;
    /// On the device of the XTEST extension: pressed by a program, Vesk or another.
    KeyStates byPrograms;
    /// That device.
    xcb_input_device_id_t programsDevice = 0;

    [[nodiscard]] KeyStates all() const { return byUser | byPrograms; }
};

/// Asked for and waited for. Empty if the server does not answer.
[[nodiscard]] HeldKeys heldKeys(const X11Connection &connection);

} // namespace vesk
