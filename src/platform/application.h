// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QWindow;

namespace vesk {

/// This program as one application among those of the desktop.
class Application : public QObject
{
    Q_OBJECT

public:
    /// Whether one of this program's windows has the focus.
    [[nodiscard]] virtual bool isActive() const = 0;

    /// Whether `hide` was called and `unhide` was not called since. The program starts unhidden, with no
    /// window shown.
    [[nodiscard]] virtual bool isHidden() const = 0;

    /// Hides all windows of the program except notices, and gives the focus back to the window that had it
    /// before `activate`, if that window is on the current workspace. A key that is still down does not reach
    /// that window. Does nothing if already hidden.
    virtual void hide() = 0;

    /// Whether `hide` is complete: the window that had the focus before `activate` has it again or, if
    /// that window no longer exists, another application has it.
    [[nodiscard]] virtual bool isAway() const = 0;

    /// Whether the window that `hide` should have given the focus back to is closed, however long ago.
    /// False if there was no such window.
    [[nodiscard]] virtual bool isPreviousWindowClosed() const = 0;

    /// Ends the hidden state. Does not show any window.
    virtual void unhide() = 0;

    /// Whether any key is down now, whichever window has the focus. Does not say which key.
    [[nodiscard]] virtual bool isAnyKeyDown() const = 0;

    /// Holds back what is typed until it is known which window should receive it: `holdKeys` keeps it for a
    /// window of this program, and `expectNoKeys` passes it on to the application in front. That application
    /// does not notice, and can still be asked about its selection. Ends by itself after a moment.
    virtual void expectKeys() = 0;
    /// See `expectKeys`, without which it does nothing.
    virtual void expectNoKeys() = 0;

    /// Holds back the keys that are typed from now on for the window that `activate` is about to focus, and
    /// remembers the other application's window that has the focus. Must be called before a window is shown,
    /// because showing it may already focus it. If no `activate` follows, ends by itself after a moment.
    /// Returns false if the platform cannot do this, or if one of this program's
    /// windows already has the focus.
    virtual bool holdKeys() = 0;

    /// Gives the focus to `window`, which must be shown or about to be shown.
    virtual void activate(QWindow &window) = 0;

    /// Gives the focus back to the window, of this or another program, that had it before `window` was
    /// activated. Hides nothing. A key that is still down does not reach that window. Does nothing if
    /// `window` does not have the focus.
    virtual void giveKeyboardBack(QWindow &window) = 0;

Q_SIGNALS:
    /// Emitted after the program was hidden.
    void didHide();
    /// Emitted when a window of another application has taken the focus from this program, or the user has
    /// switched to another workspace while this program had a window on the screen.
    void didResignActive();
    /// Emitted when the user has started the program again; the second process has already exited.
    void reopened();
};

} // namespace vesk
