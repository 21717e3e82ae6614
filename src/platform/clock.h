// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <chrono>

namespace vesk {

/// A point in time, in microseconds since 1970 UTC.
using Date = std::chrono::sys_time<std::chrono::microseconds>;

/// Earlier than every date that a clock gives.
inline constexpr Date kDistantPast = Date::min();

/// Tells the time and waits. Every rule that depends on time takes it from here, so that tests move
/// it by hand.
class Clock
{
public:
    virtual ~Clock() = default;

    /// The current time by the system's clock; may jump when the user sets it.
    [[nodiscard]] virtual Date now() const = 0;

    /// A time that never goes back, for measuring how long something takes; its zero is arbitrary.
    [[nodiscard]] virtual std::chrono::microseconds monotonic() const = 0;

    /// Suspends the caller for at least `duration`; a duration of zero or less still gives the event
    /// loop one turn.
    virtual QCoro::Task<> sleep(std::chrono::milliseconds duration) = 0;
};

} // namespace vesk
