// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>
#include <optional>

namespace vesk {

class Clock;
class EventTap;

/// Notices two taps of Shift in quick succession, with nothing else pressed between. Owned by whoever
/// acts on it.
class DoubleShiftMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Both have to outlive the monitor.
    DoubleShiftMonitor(EventTap &tap, Clock &clock);

    /// Begins to listen. Does nothing if it listens already; where listening is not allowed yet, a
    /// later call tries again.
    void start();

Q_SIGNALS:
    /// Shift was tapped twice; the second tap has ended 0.4 seconds after the first at the latest. A
    /// third tap begins anew.
    void doubleShift();

private:
    void setFlags(Qt::KeyboardModifiers flags);
    void endTap();

    EventTap &m_tap;
    Clock &m_clock;
    /// When the last single tap ended.
    std::optional<std::chrono::microseconds> m_lastTap;
    /// Whether Shift, and no other modifier, is held.
    bool m_shiftIsDown = false;
};

} // namespace vesk
