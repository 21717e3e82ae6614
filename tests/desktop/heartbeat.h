// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <atomic>
#include <thread>

namespace vesk {

/// Calls Vesk over the session bus, which its event loop must answer, and calls again after each answer.
class Heartbeat final
{
public:
    explicit Heartbeat(const QString &busAddress);
    ~Heartbeat();
    Q_DISABLE_COPY_MOVE(Heartbeat)

    /// The number of answers so far.
    [[nodiscard]] int answers() const { return m_answers; }

private:
    void run(const QString &busAddress);

    std::atomic_bool m_isEnding = false;
    std::atomic_int m_answers = 0;
    std::thread m_thread;
};

} // namespace vesk
