// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>

namespace vesk {

/// Limits the total cost of reading a selection, over all transfers that this takes. The owner can be any
/// program, and may send endlessly, or one byte now and then.
class ReadingAllowance final
{
public:
    struct Limits
    {
        /// The longest silence of the owner.
        std::chrono::milliseconds silence;
        /// The total time, in addition to what the data takes at the slowest acceptable rate.
        std::chrono::milliseconds total;
        /// The total size of what is read.
        qsizetype bytes;
    };

    /// The slowest rate, in bytes a second, that is acceptable for a large content on a busy machine; and the
    /// longest time that any reading may take.
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
    /// Zero or negative when the time is up.
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
