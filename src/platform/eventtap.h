// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace vesk {

/// Listens to the keyboard while other applications have it. Only listens: every key goes on to the
/// application that it is meant for.
class EventTap : public QObject
{
    Q_OBJECT

public:
    /// Begins to listen; a second call does nothing. False if the platform does not allow it.
    virtual bool start() = 0;

Q_SIGNALS:
    /// A key that is not a modifier, or a mouse button, went down; once a press, not again for
    /// auto-repeat.
    void keyDown();
    /// A modifier went down or up; `modifiers` are all that are down now, the locks left out.
    void flagsChanged(Qt::KeyboardModifiers modifiers);
};

} // namespace vesk
