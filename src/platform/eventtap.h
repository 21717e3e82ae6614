// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <chrono>

namespace vesk {

/// The modifiers as they are after one of them went down or up.
struct ModifierChange
{
    /// All that are held down.
    Qt::KeyboardModifiers held;
    /// Whether Caps Lock is on. Num Lock, which many people never turn off, is not told.
    bool isCapsLocked = false;
    /// When it happened, by the keyboard's own clock, whose zero is arbitrary.
    std::chrono::milliseconds time{0};
};

/// Listens to the keyboard while other applications have it. Only listens: every key goes on to the
/// application that it is meant for.
class EventTap : public QObject
{
    Q_OBJECT

public:
    /// Begins to listen; a second call does nothing. False if the platform does not allow it.
    virtual bool start() = 0;

    /// Whether another program keeps all keys for itself now, as a screen lock or an open menu does. They
    /// are heard nevertheless.
    [[nodiscard]] virtual bool isKeyboardTaken() const = 0;

Q_SIGNALS:
    /// A key that is not a modifier, or a mouse button, went down; once a press, not again for
    /// auto-repeat. Num Lock and Scroll Lock are such keys.
    void keyDown();
    /// The mouse's wheel was turned.
    void wheelTurned();
    /// A modifier or Caps Lock went down or up.
    void flagsChanged(vesk::ModifierChange change);
    /// Nothing is heard any more, because the user no longer agrees, or it is heard again.
    void interrupted();
};

} // namespace vesk
