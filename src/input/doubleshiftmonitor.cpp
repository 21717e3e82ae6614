// SPDX-License-Identifier: MIT
#include "input/doubleshiftmonitor.h"

#include "platform/clock.h"
#include "platform/eventtap.h"

namespace vesk {

namespace {

/// The longest time from the end of the first tap to the end of the second.
constexpr std::chrono::milliseconds kInterval{400};

} // namespace

DoubleShiftMonitor::DoubleShiftMonitor(EventTap &tap, Clock &clock)
    : m_tap(tap)
    , m_clock(clock)
{
    // A key typed while Shift is held leaves the tap itself standing: only what came before counts
    // no more.
    connect(&tap, &EventTap::keyDown, this, [this] { m_lastTap.reset(); });
    connect(&tap, &EventTap::flagsChanged, this, &DoubleShiftMonitor::setFlags);
}

void DoubleShiftMonitor::start()
{
    // Without the platform's leave there is no double tap; all else is at hand by hot key.
    m_tap.start();
}

void DoubleShiftMonitor::setFlags(Qt::KeyboardModifiers flags)
{
    if (flags == Qt::ShiftModifier) {
        m_shiftIsDown = true;
        return;
    }
    const bool hasEnded = flags == Qt::NoModifier && m_shiftIsDown;
    m_shiftIsDown = false;
    if (hasEnded)
        endTap();
    else if (flags != Qt::NoModifier)
        m_lastTap.reset();
}

void DoubleShiftMonitor::endTap()
{
    const std::chrono::microseconds now = m_clock.monotonic();
    if (!m_lastTap || now - *m_lastTap > kInterval) {
        m_lastTap = now;
        return;
    }
    m_lastTap.reset();
    Q_EMIT doubleShift();
}

} // namespace vesk
