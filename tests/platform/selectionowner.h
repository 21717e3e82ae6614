// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/selectionthread.h"

#include <QByteArray>

/// An application that owns PRIMARY or another selection, well-behaved or not.
class SelectionOwner final
{
public:
    enum class Manner {
        Whole,
        /// Sends its text in pieces, as long texts are sent.
        Incremental,
        /// Sends in pieces, but only the first.
        StallsHalfway,
        /// Sends endless pieces of one byte.
        Drips,
        /// Lists its targets and then never answers.
        Silent,
        /// Offers no text at all.
        NoText,
        /// Marks its text as a password.
        Secret,
        /// Lists the target that says whether its text is a password, but does not answer it.
        SilentSecret,
        /// Once it has listed its targets, gives PRIMARY up to another owner, whose text is a password.
        Replaced,
    };

    SelectionOwner(QByteArray text, Manner manner, const char *selection = "PRIMARY");

    /// How often its content was requested.
    [[nodiscard]] int readings() const { return m_readings; }
    /// Whether a reader has not yet fetched all pieces.
    [[nodiscard]] bool isSending() const { return m_property != XCB_ATOM_NONE; }

private:
    using Display = vesk::DisplayConnection;
    using Request = xcb_selection_request_event_t;

    void handle(Display &display, const xcb_generic_event_t &event);
    void answer(Display &display, const Request &request);
    void sendTargets(Display &display, const Request &request) const;
    void sendText(Display &display, const Request &request);
    void sendNextPiece(Display &display);

    const QByteArray m_text;
    const Manner m_manner;
    std::atomic_int m_readings = 0;
    /// The transfer in progress; no property if there is none.
    xcb_window_t m_requestor = XCB_WINDOW_NONE;
    std::atomic<xcb_atom_t> m_property = XCB_ATOM_NONE;
    qsizetype m_sent = 0;
    std::unique_ptr<SelectionOwner> m_successor;
    // Must end before what it uses.
    std::unique_ptr<vesk::SelectionThread> m_thread;
};
