// SPDX-License-Identifier: MIT
#include "platform/x11/x11eventtap.h"

#include "platform/x11/rawinput.h"

namespace vesk {

X11EventTap::X11EventTap(RawInput &input)
    : m_input(input)
{
}

bool X11EventTap::start()
{
    if (m_isStarted)
        return true;
    m_isStarted = true;
    connect(&m_input, &RawInput::keyPressed, this, &X11EventTap::onKeyPressed);
    connect(&m_input, &RawInput::keyReleased, this, &X11EventTap::onKeyReleased);
    connect(&m_input, &RawInput::buttonPressed, this, &EventTap::keyDown);
    connect(&m_input, &RawInput::wheelTurned, this, &EventTap::wheelTurned);
    connect(&m_input, &RawInput::listeningChanged, this, &X11EventTap::onListeningChanged);
    return true;
}

bool X11EventTap::isKeyboardTaken() const
{
    return m_input.isKeyboardTaken();
}

void X11EventTap::onKeyPressed(xcb_keycode_t key, xcb_timestamp_t time)
{
    const Qt::KeyboardModifiers modifiers = m_input.modifiers().modifiersOf(key);
    if (modifiers == Qt::NoModifier && !m_input.modifiers().isCapsLock(key)) {
        Q_EMIT keyDown();
        return;
    }
    m_held.insert(key, modifiers);
    tellFlags(time);
}

void X11EventTap::onKeyReleased(xcb_keycode_t key, xcb_timestamp_t time)
{
    // Some tools send releases without a press as a precaution; ignore them.
    if (m_held.remove(key))
        tellFlags(time);
}

void X11EventTap::onListeningChanged()
{
    m_held.clear();
    Q_EMIT interrupted();
}

void X11EventTap::tellFlags(xcb_timestamp_t time)
{
    m_time += std::chrono::milliseconds(static_cast<int32_t>(time - m_serverTime));
    m_serverTime = time;
    ModifierChange change{.held = {}, .isCapsLocked = m_input.isCapsLocked(), .time = m_time};
    for (const Qt::KeyboardModifiers modifiers : std::as_const(m_held))
        change.held |= modifiers;
    Q_EMIT flagsChanged(change);
}

} // namespace vesk
