// SPDX-License-Identifier: MIT
#pragma once

#include "platform/application.h"
#include "platform/x11/heldkeyguard.h"

#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <xcb/xcb.h>

#include <optional>

namespace vesk {

class ApplicationService;
class KeyboardHold;
class X11Connection;
class X11Workspace;

/// Vesk as one of the desktop's applications: active while one of its windows is the active window.
class X11Application final : public Application
{
    Q_OBJECT

public:
    X11Application(X11Connection &connection, X11Workspace &workspace, KeyboardHold &hold,
                   ApplicationService &service);

    /// Also true while the window manager has not yet done what `activate` requested.
    [[nodiscard]] bool isActive() const override { return m_isActive || m_activation.isActive(); }
    [[nodiscard]] bool isHidden() const override { return m_isHidden; }
    void hide() override;
    [[nodiscard]] bool isAway() const override;
    [[nodiscard]] bool isPreviousWindowClosed() const override;
    void unhide() override { m_isHidden = false; }
    [[nodiscard]] bool isAnyKeyDown() const override;
    void expectKeys() override;
    void expectNoKeys() override;
    bool holdKeys() override;
    void activate(QWindow &window) override;
    void giveKeyboardBack(QWindow &window) override;

private:
    /// Another application's window.
    struct ForeignWindow
    {
        xcb_window_t id = XCB_WINDOW_NONE;
        /// The server reuses the numbers of closed windows, even for other programs.
        qint64 process = 0;
    };

    /// A window of ours that took the focus from another of ours; null if the latter is gone.
    struct Taken
    {
        QPointer<QWindow> window;
        QPointer<QWindow> from;
    };

    void onEvent(const xcb_generic_event_t *event);
    void onActiveWindowChanged();
    /// The user has switched to another workspace, leaving behind what was on the screen.
    void onWorkspaceChanged();
    /// Records which window of another application has the focus, to return it later.
    void remember();
    void rememberOwn(QWindow &window);
    /// The window of ours from which this one took the focus, if it is still shown; otherwise null.
    [[nodiscard]] QWindow *ownBefore(const QWindow &window) const;
    /// Returns the focus to the other application's window that had it. Does nothing if there is none, or if
    /// it is on another workspace, where the user would have to follow.
    void activatePrevious();
    [[nodiscard]] bool isOnThisWorkspace(xcb_window_t window) const;
    [[nodiscard]] quint32 workspaceInUse() const;
    void setActive(bool isActive);
    /// Whether the window manager has done what the last `activate` requested, or has run out of time for it.
    [[nodiscard]] bool isActivationDone() const;
    [[nodiscard]] bool isOwnWindowActive() const;
    /// Whether the active window is neither ours nor the one that had the focus before.
    [[nodiscard]] bool hasUserTurnedElsewhere() const;
    /// The active window if it belongs to another application.
    [[nodiscard]] std::optional<ForeignWindow> foreignActiveWindow() const;
    /// Whether a window is still available to the user: shown, minimised or on another workspace.
    [[nodiscard]] bool isOpen(const ForeignWindow &window) const;

    X11Connection &m_connection;
    X11Workspace &m_workspace;
    KeyboardHold &m_hold;
    HeldKeyGuard m_heldKeys;
    /// Runs while another window, or none, is active. Only when that lasts has the user turned elsewhere.
    QTimer m_elsewhere;
    /// Runs from `activate` until the window manager has responded or will not.
    QTimer m_activation;
    /// The window of another application that had the focus last. Window managers may focus ours as soon as
    /// it is shown, so this must be known beforehand.
    std::optional<ForeignWindow> m_lastForeign;
    /// The window that had the focus when ours took it.
    std::optional<ForeignWindow> m_previousWindow;
    QList<Taken> m_taken;
    QPointer<QWindow> m_activatedWindow;
    /// The window that the focus was last to be returned to, even if it was closed by then.
    std::optional<ForeignWindow> m_returnedTo;
    quint32 m_workspaceInUse = 0;
    bool m_isActive = false;
    bool m_isHidden = false;
};

} // namespace vesk
