// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/displayconnection.h"

#include <QList>

#include <X11/keysym.h>

namespace vesk {

/// The user's keyboard: each press and release goes through the X server as if it came from hardware.
class Keyboard final
{
public:
    enum class Device {
        /// The XTEST device, which all programs that send keys share.
        Programs,
        /// The X server's own keyboard.
        Hardware,
    };

    explicit Keyboard(DisplayConnection &display, Device device = Device::Programs);

    /// Keys are identified by keysym; one that is not on the keyboard is not pressed.
    void press(xcb_keysym_t key);
    void release(xcb_keysym_t key);

    /// Presses the keys in this order, modifiers first, and releases them in reverse after `hold`, which is
    /// never zero for a person.
    void tap(const QList<xcb_keysym_t> &keys, std::chrono::milliseconds hold = {});

    /// Types letters, digits, spaces and other characters of the keyboard's first two levels.
    void type(const QString &text);

    /// Grabs this key together with Super and Alt on this keyboard's connection.
    void takeHotKey(xcb_keysym_t key);

    /// Grabs the keyboard, as an open menu does; returns false if another client already has.
    [[nodiscard]] bool grab();
    void ungrab();

    /// Whether another client has grabbed this key together with Super and Alt.
    [[nodiscard]] bool isHotKeyTaken(xcb_keysym_t key) const;

private:
    struct Place
    {
        xcb_keycode_t code = 0;
        bool needsShift = false;
    };

    [[nodiscard]] Place find(xcb_keysym_t key) const;
    [[nodiscard]] quint8 findHardware() const;
    void send(xcb_keysym_t key, quint8 type);

    DisplayConnection &m_display;
    /// 0 for the XTEST device.
    quint8 m_hardware = 0;
    Reply<xcb_get_keyboard_mapping_reply_t> m_mapping;
};

} // namespace vesk
