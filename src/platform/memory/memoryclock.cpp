// SPDX-License-Identifier: MIT
#include "platform/memory/memoryclock.h"

#include <algorithm>
#include <utility>

namespace vesk {

struct MemoryClock::Suspend
{
    MemoryClock &clock;
    std::chrono::microseconds wakesAt;

    [[nodiscard]] bool await_ready() const noexcept { return false; }
    void await_suspend(std::coroutine_handle<> handle) const
    {
        const Sleeper sleeper{.wakesAt = wakesAt, .handle = handle};
        const auto place = std::ranges::upper_bound(clock.m_sleepers, wakesAt, {}, &Sleeper::wakesAt);
        clock.m_sleepers.insert(place, sleeper);
    }
    void await_resume() const noexcept {}
};

MemoryClock::MemoryClock(Date now)
    : m_now(now)
{
}

MemoryClock::~MemoryClock()
{
    const std::vector<Sleeper> sleepers = std::exchange(m_sleepers, {});
    for (const Sleeper &sleeper : sleepers)
        sleeper.handle.resume();
}

QCoro::Task<> MemoryClock::sleep(std::chrono::milliseconds duration)
{
    const auto wait = std::max(duration, std::chrono::milliseconds{0});
    co_await Suspend{.clock = *this, .wakesAt = m_monotonic + wait};
}

void MemoryClock::advance(std::chrono::milliseconds duration)
{
    const std::chrono::microseconds end = m_monotonic + duration;
    // A sleeper that goes on may put itself, or others, to sleep again within this same stretch.
    while (!m_sleepers.empty() && m_sleepers.front().wakesAt <= end) {
        const Sleeper sleeper = m_sleepers.front();
        m_sleepers.erase(m_sleepers.begin());
        moveTo(sleeper.wakesAt);
        sleeper.handle.resume();
    }
    moveTo(end);
}

void MemoryClock::moveTo(std::chrono::microseconds monotonic)
{
    m_now += monotonic - m_monotonic;
    m_monotonic = monotonic;
}

} // namespace vesk
