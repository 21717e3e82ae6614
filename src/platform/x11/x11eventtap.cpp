// SPDX-License-Identifier: MIT
#include "platform/x11/x11eventtap.h"

#include "platform/x11/rawinput.h"

namespace vesk {

namespace {

struct MaskedModifier
{
    unsigned mask;
    Qt::KeyboardModifier modifier;
};

/// Without the locks, which are no part of what is being pressed.
constexpr MaskedModifier kModifiers[]{
    {.mask = XCB_MOD_MASK_SHIFT, .modifier = Qt::ShiftModifier},
    {.mask = XCB_MOD_MASK_CONTROL, .modifier = Qt::ControlModifier},
    {.mask = XCB_MOD_MASK_1, .modifier = Qt::AltModifier},
    {.mask = XCB_MOD_MASK_4, .modifier = Qt::MetaModifier},
    {.mask = XCB_MOD_MASK_5, .modifier = Qt::GroupSwitchModifier},
};

} // namespace

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
    return true;
}

void X11EventTap::onKeyPressed(xcb_keycode_t key)
{
    if (!m_input.isModifier(key)) {
        Q_EMIT keyDown();
        return;
    }
    m_modifiersDown.insert(key);
    tellFlags();
}

void X11EventTap::onKeyReleased(xcb_keycode_t key)
{
    // Releases without a press come from tools that want to be sure, and mean nothing.
    if (m_modifiersDown.remove(key))
        tellFlags();
}

void X11EventTap::tellFlags()
{
    unsigned masks = 0;
    for (const xcb_keycode_t key : std::as_const(m_modifiersDown))
        masks |= m_input.modifierMask(key);
    Qt::KeyboardModifiers modifiers;
    for (const MaskedModifier &each : kModifiers) {
        if (masks & each.mask)
            modifiers |= each.modifier;
    }
    Q_EMIT flagsChanged(modifiers);
}

} // namespace vesk
