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

/// Vesk among the desktop's applications: active while one of its windows is the active window.
class X11Application final : public Application
{
    Q_OBJECT

public:
    X11Application(X11Connection &connection, X11Workspace &workspace, KeyboardHold &hold,
                   ApplicationService &service);

    /// Also true while the window manager has yet to do what `activate` asked for.
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
        /// The server gives the numbers of closed windows to new ones of other programs.
        qint64 process = 0;
    };

    /// One of our windows that took the keyboard from another of ours; null where that has gone.
    struct Taken
    {
        QPointer<QWindow> window;
        QPointer<QWindow> from;
    };

    void onEvent(const xcb_generic_event_t *event);
    void onActiveWindowChanged();
    /// The user has gone to another workspace: what was on the screen stays behind.
    void onWorkspaceChanged();
    /// Reads which window of another application has the keyboard, to give it back later.
    void remember();
    void rememberOwn(QWindow &window);
    /// The window of ours from which this one took the keyboard, if it is shown; else null.
    [[nodiscard]] QWindow *ownBefore(const QWindow &window) const;
    /// Gives the keyboard to the other application's window that had it. Does nothing if there is none, or
    /// it is on another workspace, where the user would have to follow.
    void activatePrevious();
    [[nodiscard]] bool isOnThisWorkspace(xcb_window_t window) const;
    [[nodiscard]] quint32 workspaceInUse() const;
    void setActive(bool isActive);
    /// Whether the window manager has done what `activate` asked for last, or had its time.
    [[nodiscard]] bool isActivationDone() const;
    [[nodiscard]] bool isOwnWindowActive() const;
    /// Whether a window is active that is neither ours nor the one that had the keyboard before.
    [[nodiscard]] bool hasUserTurnedElsewhere() const;
    /// The active window, if it is another application's.
    [[nodiscard]] std::optional<ForeignWindow> foreignActiveWindow() const;
    /// Whether a window is still there for the user: shown, minimised or on another desktop.
    [[nodiscard]] bool isOpen(const ForeignWindow &window) const;

    X11Connection &m_connection;
    X11Workspace &m_workspace;
    KeyboardHold &m_hold;
    HeldKeyGuard m_heldKeys;
    /// Runs while another window, or none, is active; only once that lasts has the user turned elsewhere.
    QTimer m_elsewhere;
    /// Runs from `activate` until the window manager has followed, or will not.
    QTimer m_activation;
    /// Another application's window that had the keyboard last. Window managers may give it to ours as
    /// soon as that is shown, so it has to be known before.
    std::optional<ForeignWindow> m_lastForeign;
    /// The one that had it when ours took it.
    std::optional<ForeignWindow> m_previousWindow;
    QList<Taken> m_taken;
    QPointer<QWindow> m_activatedWindow;
    /// The window that was to be given the keyboard back last, even if it was closed by then.
    std::optional<ForeignWindow> m_returnedTo;
    quint32 m_workspaceInUse = 0;
    bool m_isActive = false;
    bool m_isHidden = false;
};

} // namespace vesk
