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
    /// Whether one of this program's windows has the keyboard.
    [[nodiscard]] virtual bool isActive() const = 0;

    /// Whether the program was hidden and not unhidden since. It starts unhidden, with no window up.
    [[nodiscard]] virtual bool isHidden() const = 0;

    /// Takes all of the program's windows off the screen, notices excepted, and gives the keyboard
    /// back to the window that had it before `activate`, if that is on the workspace in use. A key that is
    /// still down does not reach that window. Does nothing if already hidden.
    virtual void hide() = 0;

    /// Whether what `hide` began is done: the window that had the keyboard before `activate` has it
    /// again or, where there is no such window any more, another application has it.
    [[nodiscard]] virtual bool isAway() const = 0;

    /// Whether the window that `hide` was to give the keyboard back to is closed, before or since. False
    /// where there was no such window.
    [[nodiscard]] virtual bool isPreviousWindowClosed() const = 0;

    /// Ends the hidden state, without showing any window by itself.
    virtual void unhide() = 0;

    /// Keeps what is typed from now on until it is known who is to have it: `holdKeys` keeps it for a window
    /// of this program, and `expectNoKeys` lets it go where it was meant to go. The application in front
    /// does not notice, and can still be asked about its selection. Ends by itself after a moment.
    virtual void expectKeys() = 0;
    /// Does nothing without an `expectKeys`.
    virtual void expectNoKeys() = 0;

    /// Keeps the keys that are typed from now on for the window that `activate` is about to give the
    /// keyboard to, and remembers the window of another application that has it; to be called before a
    /// window is shown, since showing it may be enough to give it the keyboard. Without an `activate` that
    /// follows, keeps them for a moment only. False if the platform cannot, or one of this program's
    /// windows has the keyboard already.
    virtual bool holdKeys() = 0;

    /// Gives the keyboard to `window`, which is shown or being shown.
    virtual void activate(QWindow &window) = 0;

    /// Gives the keyboard back to the window, of this or another program, that had it before `window`
    /// was activated, and leaves all windows where they are. A key that is still down does not reach that
    /// window. Does nothing if `window` has not got the keyboard.
    virtual void giveKeyboardBack(QWindow &window) = 0;

Q_SIGNALS:
    /// The program has gone into the hidden state.
    void didHide();
    /// A window of another application has taken the keyboard from this program, or the user has gone to
    /// another workspace while this program had a window on the screen.
    void didResignActive();
    /// The user has started the program a second time; that start has ended itself.
    void reopened();
};

} // namespace vesk
