// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>

namespace vesk {

/// What one reading of a selection may cost in all, over however many transfers it takes: the owner can
/// be any program, and may send without end, or a byte now and then.
class ReadingAllowance final
{
public:
    struct Limits
    {
        /// The longest silence of the owner.
        std::chrono::milliseconds silence;
        /// The whole time, on top of what the data takes at the slowest acceptable rate.
        std::chrono::milliseconds total;
        /// The size of everything that is read.
        qsizetype bytes;
    };

    /// The slowest rate, in bytes a second, at which a large content is worth waiting for, as on a machine
    /// that is busy, and the longest that any reading takes.
    static constexpr qsizetype kSlowestRate = qsizetype{1024} * 1024;
    static constexpr std::chrono::milliseconds kLongest{30'000};

    explicit ReadingAllowance(const Limits &limits)
        : m_limits(limits)
    {
        m_elapsed.start();
    }

    void setSilence(std::chrono::milliseconds silence) { m_limits.silence = silence; }
    void take(qsizetype bytes) { m_taken += bytes; }

    [[nodiscard]] std::chrono::milliseconds silence() const { return m_limits.silence; }
    [[nodiscard]] qsizetype bytesLeft() const { return m_limits.bytes - m_taken; }
    /// Not positive when the time is up.
    [[nodiscard]] std::chrono::milliseconds timeLeft() const
    {
        const std::chrono::milliseconds earned{m_taken * 1000 / kSlowestRate};
        return std::min(m_limits.total + earned, kLongest) - std::chrono::milliseconds{m_elapsed.elapsed()};
    }

private:
    Limits m_limits;
    QElapsedTimer m_elapsed;
    qsizetype m_taken = 0;
};

} // namespace vesk
