// SPDX-License-Identifier: MIT
#include "platform/freedesktop/systemclock.h"

#include <QCoroTimer>

#include <QTimer>

namespace vesk {

Date SystemClock::now() const
{
    return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

std::chrono::microseconds SystemClock::monotonic() const
{
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::floor<std::chrono::microseconds>(sinceStart);
}

QCoro::Task<> SystemClock::sleep(std::chrono::milliseconds duration)
{
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(duration < std::chrono::seconds{2} ? Qt::PreciseTimer : Qt::CoarseTimer);
    timer.start(std::max(duration, std::chrono::milliseconds{0}));
    co_await qCoro(timer).waitForTimeout();
}

} // namespace vesk
