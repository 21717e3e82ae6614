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
    /// back to the window that had it before `activate`. Does nothing if already hidden.
    virtual void hide() = 0;

    /// Whether what `hide` began is done: the window that had the keyboard before `activate` has it
    /// again or, where there is no such window any more, another application has it.
    [[nodiscard]] virtual bool isAway() const = 0;

    /// Whether the window that `hide` was to give the keyboard back to is closed, before or since. False
    /// where there was no such window.
    [[nodiscard]] virtual bool isPreviousWindowClosed() const = 0;

    /// Ends the hidden state, without showing any window by itself.
    virtual void unhide() = 0;

    /// Keeps the keys that are typed from now on for the window that `activate` is about to give the
    /// keyboard to; without an `activate` that follows, for a moment only. False if the platform cannot,
    /// or one of this program's windows has the keyboard already.
    virtual bool holdKeys() = 0;

    /// Gives the keyboard to `window`, which is shown or being shown, and remembers the window of
    /// another application that had it.
    virtual void activate(QWindow &window) = 0;

    /// Gives the keyboard back to the window, of this or another program, that had it before `window`
    /// was activated, and leaves all windows where they are. Does nothing if `window` has not got it.
    virtual void giveKeyboardBack(QWindow &window) = 0;

Q_SIGNALS:
    /// The program has gone into the hidden state.
    void didHide();
    /// A window of another application has taken the keyboard from this program.
    void didResignActive();
    /// The user has started the program a second time; that start has ended itself.
    void reopened();
};

} // namespace vesk
