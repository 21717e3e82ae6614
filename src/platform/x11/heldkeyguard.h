// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/keystates.h"

#include <QObject>
#include <QTimer>

namespace vesk {

class X11Connection;

/// Prevents a key that was pressed in one of Vesk's windows from reaching the window that gets the focus
/// next: the server repeats a held key for whichever window has the focus. The grabs belong to a separate
/// connection and end with it, whatever hot keys Vesk has on the same keys.
class HeldKeyGuard final : public QObject
{
    Q_OBJECT

public:
    explicit HeldKeyGuard(const X11Connection &connection);
    ~HeldKeyGuard() override;

    /// Guards the keys that are down now and would be repeated, until all of them are up. Must be called
    /// before another window gets the focus.
    void begin();

private:
    void grab(xcb_keycode_t key, unsigned modifiers);
    void lookForReleases();
    void end();

    const X11Connection &m_connection;
    /// Null while no key is guarded.
    xcb_connection_t *m_grabs = nullptr;
    KeyStates m_guarded;
    QTimer m_watch;
    /// How many times in a row all guarded keys were up.
    int m_looksWithout = 0;
};

} // namespace vesk
