// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace vesk {

/// Moves the system's clocks forward for this program alone: for Qt's timers as for everything else that asks
/// them. Timers whose time has come fire at the event loop's next turn.
void advanceSystemClock(std::chrono::milliseconds duration);

} // namespace vesk
