// SPDX-License-Identifier: MIT
#include "movableclock.h"

#include <atomic>
#include <ctime>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

std::atomic<std::chrono::nanoseconds> g_advanced{};

} // namespace

/// Replaces the C library's function, for all libraries too.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name): the library's names are reserved.
extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    const long result = ::syscall(SYS_clock_gettime, clock, time);
    if (result == 0 && (clock == CLOCK_MONOTONIC || clock == CLOCK_REALTIME)) {
        const std::chrono::nanoseconds moved =
            std::chrono::seconds(time->tv_sec) + std::chrono::nanoseconds(time->tv_nsec) + g_advanced.load();
        const auto seconds = std::chrono::floor<std::chrono::seconds>(moved);
        time->tv_sec = seconds.count();
        time->tv_nsec = (moved - seconds).count();
    }
    return static_cast<int>(result);
}

namespace vesk {

void advanceSystemClock(std::chrono::milliseconds duration)
{
    g_advanced.store(g_advanced.load() + duration);
}

} // namespace vesk
