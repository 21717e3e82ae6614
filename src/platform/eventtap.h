// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>

namespace vesk {

/// The state of the modifiers after one of them was pressed or released.
struct ModifierChange
{
    /// All that are held down.
    Qt::KeyboardModifiers held;
    /// Whether Caps Lock is on. Num Lock is ignored, because many people never turn it off.
    bool isCapsLocked = false;
    /// When it happened, by the keyboard's own clock. Its zero is arbitrary.
    std::chrono::milliseconds time{0};
};

/// Listens to the keyboard while other applications have it. Never takes a key away from them.
class EventTap : public QObject
{
    Q_OBJECT

public:
    /// Starts listening; a second call does nothing. Returns false if the platform does not allow it.
    virtual bool start() = 0;

    /// Whether another program has grabbed the keyboard, as a screen lock or an open menu does. The signals
    /// below are emitted nevertheless.
    [[nodiscard]] virtual bool isKeyboardTaken() const = 0;

Q_SIGNALS:
    /// Emitted when a mouse button or a key that is not a modifier was pressed; once per press, not for
    /// auto-repeat. Num Lock and Scroll Lock are not modifiers.
    void keyDown();
    /// Emitted when the mouse wheel was turned.
    void wheelTurned();
    /// Emitted when a modifier or Caps Lock was pressed or released.
    void flagsChanged(vesk::ModifierChange change);
    /// Emitted when listening stops, because the user no longer agrees, and when it starts again. Keys may
    /// have been missed.
    void interrupted();
};

} // namespace vesk
