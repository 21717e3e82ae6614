// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

namespace vesk {

/// Advances the system's clocks for this program only: for Qt's timers and everything else that reads them.
/// Timers that are due fire at the event loop's next iteration.
void advanceSystemClock(std::chrono::milliseconds duration);

} // namespace vesk
