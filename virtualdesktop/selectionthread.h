// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/displayconnection.h"

#include <QList>

#include <atomic>
#include <thread>

namespace vesk {

/// Owns a selection as a separate program would: in a separate thread with a separate connection, until
/// another client takes it or this object is destroyed.
class SelectionThread final
{
public:
    /// Called on the thread for each event from the server.
    using Handler = std::function<void(DisplayConnection &display, const xcb_generic_event_t &event)>;

    /// The selection is owned when this returns. Null if the server did not answer.
    [[nodiscard]] static std::unique_ptr<SelectionThread> own(const QString &displayName,
                                                              const char *selection, Handler handler);
    ~SelectionThread();
    Q_DISABLE_COPY_MOVE(SelectionThread)

    /// Claims the selection again, with a new time.
    void claimAgain();
    /// The window that owns the selection.
    [[nodiscard]] xcb_window_t window() const { return m_display->window(); }

    /// The request in an event; nullopt if it is something else.
    [[nodiscard]] static std::optional<xcb_selection_request_event_t>
    requestIn(const xcb_generic_event_t &event);
    /// Writes an answer where the requesting program wants it: units of `format` bits.
    static void write(DisplayConnection &display, const xcb_selection_request_event_t &request,
                      xcb_atom_t type, quint8 format, const QByteArray &bytes);
    static void writeAtoms(DisplayConnection &display, const xcb_selection_request_event_t &request,
                           const QList<xcb_atom_t> &atoms);
    /// Tells the requesting program that the answer is there, or that there is none.
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
