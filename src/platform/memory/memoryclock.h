// SPDX-License-Identifier: MIT
#pragma once

#include "platform/clock.h"

#include <QtGlobal>

#include <coroutine>
#include <vector>

namespace vesk {

/// A clock that stands still until a test moves it.
class MemoryClock final : public Clock
{
public:
    explicit MemoryClock(Date now = Date{std::chrono::years{50}});
    /// Wakes all sleepers, so that each can notice that what it waited for is gone, and finish.
    ~MemoryClock() override;
    Q_DISABLE_COPY_MOVE(MemoryClock)

    [[nodiscard]] Date now() const override { return m_now; }
    [[nodiscard]] std::chrono::microseconds monotonic() const override { return m_monotonic; }
    QCoro::Task<> sleep(std::chrono::milliseconds duration) override;

    /// Sets the date only, like a user who sets the system's clock. Does not wake sleepers.
    void setNow(Date now) { m_now = now; }
    /// Lets time pass. Wakes sleepers in the order of their times, each at its own time.
    void advance(std::chrono::milliseconds duration);
    [[nodiscard]] qsizetype sleeperCount() const { return static_cast<qsizetype>(m_sleepers.size()); }

private:
    struct Sleeper
    {
        std::chrono::microseconds wakesAt;
        std::coroutine_handle<> handle;
    };
    struct Suspend;

    void moveTo(std::chrono::microseconds monotonic);

    Date m_now;
    std::chrono::microseconds m_monotonic{0};
    /// Sorted by time, and for the same time in the order in which they went to sleep.
    std::vector<Sleeper> m_sleepers;
};

} // namespace vesk
