// SPDX-License-Identifier: MIT
#pragma once

#include "platform/x11/emacsselection.h"
#include "platform/x11/primaryselection.h"

#include <QCoroTask>

#include <QList>
#include <QObject>

#include <optional>

namespace vesk {

class RawInput;
class X11Connection;
class X11Workspace;

/// Tells whether what PRIMARY offers is still selected in a window. Applications do not say when it no longer
/// is.
class PrimaryStanding final : public QObject
{
    Q_OBJECT

public:
    /// All of them must outlive this object.
    struct Needs
    {
        X11Connection &connection;
        RawInput &input;
        X11Workspace &workspace;
        PrimarySelection &primary;
    };

    explicit PrimaryStanding(const Needs &needs);

    /// Whether the application of this window owns PRIMARY, with any of its windows.
    [[nodiscard]] bool isOfApplication(xcb_window_t window) const;

    /// Whether this window, or a window inside it, owns PRIMARY.
    [[nodiscard]] bool isInside(xcb_window_t window) const;

    /// Whether the application of this window has claimed PRIMARY since the last press that may have changed
    /// the selection, and since the window got the focus. False if any of these times is not known.
    [[nodiscard]] bool isFresh(xcb_window_t window) const;

    /// The same for an application that cannot be asked anything better, such as a terminal. If it owns
    /// PRIMARY with the part of this window in which it draws the text, as xterm and Emacs do, a claim holds
    /// until the user does something there (in Emacs anything, elsewhere a click), whatever happens in other
    /// windows. Takes a moment right after Emacs has claimed.
    QCoro::Task<bool> stands(xcb_window_t window);

private:
    void onListening();
    void onButton();
    void onKey(xcb_keycode_t key, xcb_timestamp_t time);
    void onClaimed();
    /// Removes a press for Emacs that turned out to be taken by a grab, which the server reports after the
    /// press.
    void correctPress();
    /// The window, its parent, and so on up to the root.
    [[nodiscard]] QList<xcb_window_t> windowsAround(xcb_window_t window) const;
    [[nodiscard]] bool isOfEmacs(xcb_window_t window) const;
    /// The innermost window under the pointer.
    [[nodiscard]] xcb_window_t windowUnderPointer() const;

    Needs m_needs;
    EmacsSelection m_emacs;
    /// If Emacs owns PRIMARY, its owner window and the windows around that; otherwise empty.
    QList<xcb_window_t> m_emacsWindows;
    /// Number of the last claim before Vesk listened to presses.
    quint64 m_unheard = 0;
    /// Number of the last claim whose owner window the user has clicked.
    std::optional<quint64> m_clicked;
};

} // namespace vesk
