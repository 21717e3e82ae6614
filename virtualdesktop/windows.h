// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/displayconnection.h"

#include <QList>
#include <QRect>

namespace vesk {

/// A window as the X server reports it; in pixels from the top left corner of the screen, without the frame.
struct Window
{
    xcb_window_t id = XCB_WINDOW_NONE;
    QString title;
    qint64 pid = 0;
    QRect geometry;
    bool isViewable = false;
};

/// The windows of the desktop, managed or not, and which of them is active.
class Windows final
{
public:
    explicit Windows(DisplayConnection &display);

    /// All windows that have a title or report their process.
    [[nodiscard]] QList<Window> all() const;

    /// The viewable window with exactly this title.
    [[nodiscard]] std::optional<Window> findViewable(const QString &title) const;

    /// The viewable window of a process whose title contains `part`; any of its windows if `part` is empty.
    [[nodiscard]] std::optional<Window> findViewableOf(qint64 pid, const QString &part = {}) const;

    /// The viewable window that satisfies `isIt`.
    [[nodiscard]] std::optional<Window> findViewableIf(const std::function<bool(const Window &)> &isIt) const;

    /// nullopt after `bound`.
    [[nodiscard]] std::optional<Window> waitViewable(const QString &title, std::chrono::milliseconds bound);
    [[nodiscard]] std::optional<Window> waitViewableOf(qint64 pid, const QString &part,
                                                       std::chrono::milliseconds bound);

    /// The window with this title once it is viewable and has the focus; nullopt after `bound`.
    [[nodiscard]] std::optional<Window> waitFocused(const QString &title, std::chrono::milliseconds bound);

    /// Returns true once no window with this title is viewable, false after `bound`.
    [[nodiscard]] bool waitGone(const QString &title, std::chrono::milliseconds bound);

    /// Returns true once the window, or one inside it, has the focus, false after `bound`.
    [[nodiscard]] bool waitFocused(const Window &window, std::chrono::milliseconds bound);

    /// Returns true once the window manager reports the window as active, false after `bound`.
    [[nodiscard]] bool waitActive(const Window &window, std::chrono::milliseconds bound);

    /// Whether the window manager reports the window as active.
    [[nodiscard]] bool isActive(const Window &window) const { return activeWindow() == window.id; }

    /// Asks the window manager to activate the window, as a pager does.
    void activate(const Window &window);

    /// The managed windows from bottom to top, as the window manager reports them.
    [[nodiscard]] QList<xcb_window_t> stack() const;

    /// Whether the window manager reports this state for a window.
    [[nodiscard]] bool hasState(const Window &window, const char *state) const;

    /// Whether the window's shape is cut.
    [[nodiscard]] bool isCut(const Window &window) const;

    /// A number that the window manager has set on the root window; 0 if there is none.
    [[nodiscard]] quint32 rootNumber(const char *property) const;

    /// Asks the window manager to switch to this workspace, as a pager does, and waits until it has. Returns
    /// false after `bound`.
    [[nodiscard]] bool goToWorkspace(quint32 index, std::chrono::milliseconds bound);

    /// The screen without the space that docks reserve, as reported by the docks or the window manager.
    [[nodiscard]] QRect workArea() const;

    /// The titles of all viewable windows, for a failing test's message.
    [[nodiscard]] QString describe() const;

private:
    [[nodiscard]] bool isFocusInside(xcb_window_t window) const;
    [[nodiscard]] xcb_window_t activeWindow() const;
    void sendToRoot(const char *type, xcb_window_t window, quint32 value);
    [[nodiscard]] QList<quint32> numbers(xcb_window_t window, const char *property) const;
    [[nodiscard]] QList<xcb_window_t> topWindows() const;

    DisplayConnection &m_display;
    xcb_atom_t m_titleAtom;
    xcb_atom_t m_pidAtom;
};

} // namespace vesk
