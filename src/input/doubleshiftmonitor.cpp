// SPDX-License-Identifier: MIT
#include "input/doubleshiftmonitor.h"

#include "platform/eventtap.h"

namespace vesk {

namespace {

/// The longest time from the end of the first tap to the end of the second.
constexpr std::chrono::milliseconds kInterval{400};

} // namespace

DoubleShiftMonitor::DoubleShiftMonitor(EventTap &tap)
    : m_tap(tap)
{
}

void DoubleShiftMonitor::start()
{
    // Without the platform's permission there is no double tap; everything else can be reached by hot key.
    if (m_isListening || !m_tap.start())
        return;
    m_isListening = true;
    connect(&m_tap, &EventTap::keyDown, this, &DoubleShiftMonitor::onOtherInput);
    connect(&m_tap, &EventTap::wheelTurned, this, &DoubleShiftMonitor::onOtherInput);
    connect(&m_tap, &EventTap::flagsChanged, this, &DoubleShiftMonitor::setFlags);
    connect(&m_tap, &EventTap::interrupted, this, &DoubleShiftMonitor::forget);
}

void DoubleShiftMonitor::stop()
{
    m_tap.disconnect(this);
    m_isListening = false;
    forget();
}

void DoubleShiftMonitor::setFlags(const ModifierChange &change)
{
    // With Caps Lock on, Shift types lower-case letters, so it is not being tapped.
    const bool isShift = change.held == Qt::ShiftModifier && !change.isCapsLocked;
    const bool isNothing = change.held == Qt::NoModifier && !change.isCapsLocked;
    const bool isTap = isNothing && m_shiftIsDown && !m_isUsed;
    m_isAnyHeld = change.held != Qt::NoModifier;
    m_isUsed = m_isUsed && m_isAnyHeld;
    if (isShift) {
        m_shiftIsDown = true;
        return;
    }
    m_shiftIsDown = false;
    if (isTap)
        endTap(change.time);
    else if (!isNothing)
        m_lastTap.reset();
}

void DoubleShiftMonitor::onOtherInput()
{
    m_lastTap.reset();
    // If something was typed or clicked while Shift was held, this is not a tap, even if Shift is released
    // alone.
    m_isUsed = m_isAnyHeld;
}

void DoubleShiftMonitor::endTap(std::chrono::milliseconds now)
{
    if (!m_lastTap || now - *m_lastTap > kInterval) {
        m_lastTap = now;
        return;
    }
    m_lastTap.reset();
    Q_EMIT doubleShift();
}

void DoubleShiftMonitor::forget()
{
    m_lastTap.reset();
    m_shiftIsDown = false;
    m_isAnyHeld = false;
    m_isUsed = false;
}

} // namespace vesk
