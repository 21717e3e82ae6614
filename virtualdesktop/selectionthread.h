// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/displayconnection.h"

#include <QList>

#include <atomic>
#include <thread>

namespace vesk {

/// Owns a selection as a program of its own does: on a thread and a connection of its own, until someone
/// else takes it or this object goes.
class SelectionThread final
{
public:
    /// Is called on the thread for each event that the server sends.
    using Handler = std::function<void(DisplayConnection &display, const xcb_generic_event_t &event)>;

    /// Owns the selection when this returns. Null if the server did not answer.
    [[nodiscard]] static std::unique_ptr<SelectionThread> own(const QString &displayName,
                                                              const char *selection, Handler handler);
    ~SelectionThread();
    Q_DISABLE_COPY_MOVE(SelectionThread)

    /// Owns it once more, with a new time.
    void claimAgain();
    /// The window by which it is owned.
    [[nodiscard]] xcb_window_t window() const { return m_display->window(); }

    /// The request in an event; none if it is something else.
    [[nodiscard]] static std::optional<xcb_selection_request_event_t>
    requestIn(const xcb_generic_event_t &event);
    /// Puts an answer where the asking program wants it: units of `format` bits.
    static void write(DisplayConnection &display, const xcb_selection_request_event_t &request,
                      xcb_atom_t type, quint8 format, const QByteArray &bytes);
    static void writeAtoms(DisplayConnection &display, const xcb_selection_request_event_t &request,
                           const QList<xcb_atom_t> &atoms);
    /// Tells the asking program that the answer is there, or that there is none.
    static void notify(DisplayConnection &display, const xcb_selection_request_event_t &request,
                       bool isGiven);

private:
    SelectionThread(std::unique_ptr<DisplayConnection> display, xcb_atom_t selection, Handler handler);

    void serve();

    const std::unique_ptr<DisplayConnection> m_display;
    const xcb_atom_t m_selection;
    const Handler m_handler;
    std::atomic_bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace vesk
