// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <atomic>
#include <chrono>
#include <thread>

namespace vesk {

/// Asks Vesk something by the session bus, again and again, which its event loop has to answer, and
/// knows for how long it did not.
class Heartbeat final
{
public:
    explicit Heartbeat(const QString &busAddress);
    ~Heartbeat();
    Q_DISABLE_COPY_MOVE(Heartbeat)

    /// Ends the asking. The longest time from a question to its answer.
    [[nodiscard]] std::chrono::milliseconds longestSilence();
    /// How many answers have come.
    [[nodiscard]] int beats() const { return m_beats; }

private:
    void run(const QString &busAddress);

    std::atomic_bool m_isEnding = false;
    std::atomic_int m_beats = 0;
    std::atomic<std::chrono::milliseconds> m_longest{};
    std::thread m_thread;
};

} // namespace vesk
