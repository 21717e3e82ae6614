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
        /// In pieces, as long texts are sent.
        Incremental,
        /// In pieces, of which only the first comes.
        StallsHalfway,
        /// In pieces of one byte without end.
        Drips,
        /// Lists its targets and then never answers.
        Silent,
        /// Offers no text at all.
        NoText,
        /// Says that its text is a password.
        Secret,
        /// Lists what says whether its text is a password, and then does not answer that.
        SilentSecret,
        /// Gives PRIMARY up to another owner, whose text is a password, once it has listed its targets.
        Replaced,
    };

    SelectionOwner(QByteArray text, Manner manner, const char *selection = "PRIMARY");

    /// How often its content was asked for.
    [[nodiscard]] int readings() const { return m_readings; }
    /// Whether a reader has yet to take pieces.
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
    /// The transfer in pieces that runs; no property for none.
    xcb_window_t m_requestor = XCB_WINDOW_NONE;
    std::atomic<xcb_atom_t> m_property = XCB_ATOM_NONE;
    qsizetype m_sent = 0;
    std::unique_ptr<SelectionOwner> m_successor;
    // Ends before what it uses.
    std::unique_ptr<vesk::SelectionThread> m_thread;
};
