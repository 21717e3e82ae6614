// SPDX-License-Identifier: MIT
#pragma once

#include "platform/application.h"
#include "platform/x11/heldkeyguard.h"
#include "platform/x11/keyboardhold.h"

#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

class ApplicationService;
class X11Connection;
class X11Workspace;

/// Vesk among the desktop's applications: active while one of its windows is the active window.
class X11Application final : public Application
{
    Q_OBJECT

public:
    X11Application(X11Connection &connection, X11Workspace &workspace, ApplicationService &service);

    /// Also true while the window manager has yet to do what `activate` asked for.
    [[nodiscard]] bool isActive() const override { return m_isActive || m_activation.isActive(); }
    [[nodiscard]] bool isHidden() const override { return m_isHidden; }
    void hide() override;
    [[nodiscard]] bool isAway() const override;
    [[nodiscard]] bool isPreviousWindowClosed() const override;
    void unhide() override { m_isHidden = false; }
    bool holdKeys() override;
    void activate(QWindow &window) override;
    void giveKeyboardBack(QWindow &window) override;

private:
    /// Another application's window.
    struct ForeignWindow
    {
        xcb_window_t id = XCB_WINDOW_NONE;
        /// The server gives the numbers of closed windows to new ones of other programs.
        qint64 process = 0;
    };

    void onActiveWindowChanged();
    void setActive(bool isActive);
    [[nodiscard]] bool isOwnWindowActive() const;
    /// Whether a window is active that is neither ours nor the one that had the keyboard before.
    [[nodiscard]] bool hasUserTurnedElsewhere() const;
    /// The active window, if it is another application's.
    [[nodiscard]] std::optional<ForeignWindow> foreignActiveWindow() const;
    /// Whether a window is still there for the user: shown, minimised or on another desktop.
    [[nodiscard]] bool isOpen(const ForeignWindow &window) const;

    X11Connection &m_connection;
    X11Workspace &m_workspace;
    KeyboardHold m_hold;
    HeldKeyGuard m_heldKeys;
    /// Runs while another window, or none, is active; only once that lasts has the user turned elsewhere.
    QTimer m_elsewhere;
    /// Runs from `activate` until the window manager has followed, or will not.
    QTimer m_activation;
    /// Another application's window that had the keyboard before, and ours that took it after, if any.
    std::optional<ForeignWindow> m_previousWindow;
    QPointer<QWindow> m_previousOwnWindow;
    QPointer<QWindow> m_activatedWindow;
    /// The window that was to be given the keyboard back last, even if it was closed by then.
    std::optional<ForeignWindow> m_returnedTo;
    bool m_isActive = false;
    bool m_isHidden = false;
};

} // namespace vesk
