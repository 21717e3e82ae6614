// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xinput.h>

#include <bitset>

namespace vesk {

class X11Connection;

/// Which keys are down, by their key codes.
using KeyStates = std::bitset<256>;

/// The keys that are down as applications see them; waits for the server. Empty if the server does not
/// answer. The device that last pressed or released a key decides.
[[nodiscard]] KeyStates keysDown(const X11Connection &connection);

/// The keys that are down on the devices behind the keyboard, regardless of what applications have been told.
struct HeldKeys
{
    /// On the keyboards themselves: held by the user.
    KeyStates byUser;
    /// On the XTEST device: pressed by a program, whether Vesk or another.
    KeyStates byPrograms;
    /// The XTEST device.
    xcb_input_device_id_t programsDevice = 0;

    [[nodiscard]] KeyStates all() const { return byUser | byPrograms; }
};

/// Waits for the server. Empty if it does not answer.
[[nodiscard]] HeldKeys heldKeys(const X11Connection &connection);

} // namespace vesk
