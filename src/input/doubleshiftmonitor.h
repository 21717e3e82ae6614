// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>
#include <optional>

namespace vesk {

class EventTap;
struct ModifierChange;

/// Detects two quick taps of Shift with nothing else pressed in between. Owned by the class that acts on it.
class DoubleShiftMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Does not listen yet. `tap` must outlive the monitor.
    explicit DoubleShiftMonitor(EventTap &tap);

    /// Starts listening. Does nothing if it already listens. If listening is not allowed yet, a later call
    /// tries again.
    void start();
    /// Stops listening, and forgets a first tap.
    void stop();

Q_SIGNALS:
    /// Emitted when Shift was tapped twice and the second tap ended at most 0.4 seconds after the first. A
    /// third tap counts as the first of the next pair.
    void doubleShift();

private:
    void setFlags(const ModifierChange &change);
    void onOtherInput();
    void endTap(std::chrono::milliseconds now);
    void forget();

    EventTap &m_tap;
    bool m_isListening = false;
    /// When the first tap of a pair ended.
    std::optional<std::chrono::milliseconds> m_lastTap;
    /// Whether only Shift is held.
    bool m_shiftIsDown = false;
    bool m_isAnyHeld = false;
    /// Whether a key, a mouse button or the wheel was used while the current modifiers were held.
    bool m_isUsed = false;
};

} // namespace vesk
