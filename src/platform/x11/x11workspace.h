// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/desktopentries.h"
#include "platform/workspace.h"
#include "platform/x11/keytaker.h"

#include <xcb/xcb.h>

namespace vesk {

class X11Connection;

/// The applications of the desktop, according to the window manager and the desktop entries.
class X11Workspace final : public Workspace
{
    Q_OBJECT

public:
    explicit X11Workspace(X11Connection &connection);

    [[nodiscard]] std::optional<RunningApplication> frontmostApplication() const override;
    [[nodiscard]] bool hasApplication(const QString &bundleIdentifier) const override;
    [[nodiscard]] QIcon iconForApplication(const QString &bundleIdentifier) const override;
    bool openUrl(const QUrl &url) override;
    bool openApplication(const QString &bundleIdentifier) override;

    /// The window that has the focus; nullopt for the desktop itself, or if the window has gone (window
    /// managers may leave its number behind).
    [[nodiscard]] std::optional<xcb_window_t> activeWindow() const;
    /// The same, according to the events handled so far. While a key press is handled, this is the window of
    /// the press even if another window has become active since.
    [[nodiscard]] std::optional<xcb_window_t> reportedWindow() const { return m_reportedWindow; }
    /// Returns `reportedWindow`, and remembers for `isOvertaken` which events were handled.
    [[nodiscard]] std::optional<xcb_window_t> windowOfEvent();
    /// Whether the active window changed between the event for which `windowOfEvent` returned this window and
    /// the handling of that event, so that the result may be wrong. Known once the events of that time are
    /// handled.
    [[nodiscard]] bool isOvertaken(xcb_window_t window) const { return window == m_overtakenWindow; }
    /// Returns the process that shows a window on this machine; for a program on another machine, the one
    /// that forwards its windows, such as ssh. Nullopt if it is gone or not known.
    [[nodiscard]] std::optional<qint64> processOf(xcb_window_t window) const;
    /// Whether the window says that its program runs on another machine. Its process identifier is then not
    /// valid here.
    [[nodiscard]] bool isOfAnotherMachine(xcb_window_t window) const;
    /// What the window says about its application.
    [[nodiscard]] WindowIdentity identityOf(xcb_window_t window, qint64 processIdentifier) const;
    /// Returns how the application of a window reacts to the keys of a command.
    [[nodiscard]] KeyTaker keyTakerOf(xcb_window_t window) const;
    [[nodiscard]] const DesktopEntries &entries() const { return m_entries; }
    /// Title of a window; empty if it has none.
    [[nodiscard]] QString titleOf(xcb_window_t window) const;
    /// Server time at which the active window got the focus; 0 if that was before Vesk started.
    [[nodiscard]] xcb_timestamp_t activationTime() const { return m_activationTime; }
    /// Reads the desktop entries now instead of when they are first needed.
    void warmUp() const;

Q_SIGNALS:
    /// Emitted when the window manager names another active window, or none.
    void activeWindowChanged();

private:
    void onEvent(const xcb_generic_event_t *event);
    [[nodiscard]] RunningApplication applicationOf(xcb_window_t window, qint64 processIdentifier) const;

    X11Connection &m_connection;
    DesktopEntries m_entries;
    /// The active window when its change was last reported.
    std::optional<xcb_window_t> m_reportedWindow;
    /// The window that was returned last, and the request after which it was.
    std::optional<xcb_window_t> m_askedWindow;
    uint32_t m_askedAt = 0;
    xcb_window_t m_overtakenWindow = XCB_WINDOW_NONE;
    std::optional<xcb_window_t> m_lastWindow;
    qint64 m_lastProcess = 0;
    xcb_timestamp_t m_activationTime = 0;
};

} // namespace vesk
