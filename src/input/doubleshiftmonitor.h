// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>
#include <optional>

namespace vesk {

class EventTap;
struct ModifierChange;

/// Notices two taps of Shift in quick succession, with nothing else pressed between. Owned by whoever
/// acts on it.
class DoubleShiftMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Does not listen yet. The tap has to outlive the monitor.
    explicit DoubleShiftMonitor(EventTap &tap);

    /// Begins to listen. Does nothing if it listens already; where listening is not allowed yet, a
    /// later call tries again.
    void start();
    /// Ends to listen, and forgets a tap that was made.
    void stop();

Q_SIGNALS:
    /// Shift was tapped twice; the second tap has ended 0.4 seconds after the first at the latest. A
    /// third tap begins anew.
    void doubleShift();

private:
    void setFlags(const ModifierChange &change);
    void onOtherInput();
    void endTap(std::chrono::milliseconds now);
    void forget();

    EventTap &m_tap;
    bool m_isListening = false;
    /// When the last single tap ended.
    std::optional<std::chrono::milliseconds> m_lastTap;
    /// Whether Shift, and no other modifier, is held.
    bool m_shiftIsDown = false;
    bool m_isAnyHeld = false;
    /// Whether a key, a mouse button or the wheel was used with the modifiers that are held.
    bool m_isUsed = false;
};

} // namespace vesk
