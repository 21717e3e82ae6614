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

/// Whether what PRIMARY offers is still selected in a window. Applications do not say when it no longer is.
class PrimaryStanding final : public QObject
{
    Q_OBJECT

public:
    /// All of it must outlive this object.
    struct Needs
    {
        X11Connection &connection;
        RawInput &input;
        X11Workspace &workspace;
        PrimarySelection &primary;
    };

    explicit PrimaryStanding(const Needs &needs);

    /// Whether the application of this window owns PRIMARY, with whichever of its windows.
    [[nodiscard]] bool isOfApplication(xcb_window_t window) const;

    /// Whether PRIMARY is owned by a part of this window.
    [[nodiscard]] bool isInside(xcb_window_t window) const;

    /// Whether the application of this window has claimed PRIMARY since the user last pressed a key or a
    /// button, and since the window has the keyboard. False if any of these times is not known.
    [[nodiscard]] bool isFresh(xcb_window_t window) const;

    /// The same for an application of which nothing better can be asked, such as a terminal. If it owns
    /// PRIMARY by the part of this window in which it draws the text, as xterm and Emacs do, a claim holds
    /// until the user does something there, whatever happens elsewhere: in Emacs anything, in others a click.
    /// Takes a moment right after Emacs has claimed.
    QCoro::Task<bool> stands(xcb_window_t window);

private:
    void onListening();
    void onButton();
    void onKey(xcb_keycode_t key, xcb_timestamp_t time);
    void onClaimed();
    /// Takes back a key of Emacs that a grab has taken, as the server says after the press.
    void correctPress();
    /// The window itself, the one around it, and so on, up to the root.
    [[nodiscard]] QList<xcb_window_t> windowsAround(xcb_window_t window) const;
    [[nodiscard]] bool isOfEmacs(xcb_window_t window) const;
    /// The innermost window under the pointer.
    [[nodiscard]] xcb_window_t windowUnderPointer() const;

    Needs m_needs;
    EmacsSelection m_emacs;
    /// If Emacs owns PRIMARY, the window by which it does, and those around it; else empty.
    QList<xcb_window_t> m_emacsWindows;
    /// Number of the last claim before the user's presses were heard.
    quint64 m_unheard = 0;
    /// Number of the last claim that the user has clicked into the owner of.
    std::optional<quint64> m_clicked;
};

} // namespace vesk
