// SPDX-License-Identifier: MIT
#pragma once

#include "platform/eventposter.h"

#include <QList>
#include <QObject>

#include <xcb/xcb.h>

namespace vesk {

class Clock;
class RawInput;
class X11Connection;
class X11Workspace;

/// Keys by XTEST, which applications cannot tell from the user's.
class X11EventPoster final : public QObject, public EventPoster
{
    Q_OBJECT

public:
    X11EventPoster(X11Connection &connection, RawInput &input, X11Workspace &workspace, Clock &clock);

    QCoro::Task<bool> post(Command command, std::function<bool()> isWanted) override;

private:
    /// Waits until no key but modifiers has been down for a while; false if one stays down.
    QCoro::Task<bool> waitForLetters();
    [[nodiscard]] bool hasLetterDown() const;
    /// Posts the keys of a command for the window that is active now; false if it must not get them.
    [[nodiscard]] bool postToActiveWindow(Command command);
    void sendKey(xcb_keycode_t key, uint8_t type);
    /// 0 if the keyboard has no such key.
    [[nodiscard]] xcb_keycode_t keyCodeOf(uint32_t keysym) const;

    X11Connection &m_connection;
    RawInput &m_input;
    X11Workspace &m_workspace;
    Clock &m_clock;
};

} // namespace vesk
