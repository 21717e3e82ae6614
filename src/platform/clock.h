// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <chrono>

namespace vesk {

/// A point in time, in microseconds since 1970 UTC.
using Date = std::chrono::sys_time<std::chrono::microseconds>;

/// Earlier than every date that a clock returns.
inline constexpr Date kDistantPast = Date::min();

/// Tells the time and waits. Every rule that depends on time uses it, so that tests can move the time by
/// hand.
class Clock
{
public:
    virtual ~Clock() = default;

    /// The current time of the system's clock, which may jump when the user sets it.
    [[nodiscard]] virtual Date now() const = 0;

    /// A time that never goes backwards, for measuring durations. Its zero is arbitrary.
    [[nodiscard]] virtual std::chrono::microseconds monotonic() const = 0;

    /// Suspends the caller for at least `duration`. Even for zero or less, the event loop runs once.
    virtual QCoro::Task<> sleep(std::chrono::milliseconds duration) = 0;
};

} // namespace vesk
