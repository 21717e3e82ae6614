// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QTimer>

#include <xcb/xcb.h>

#include <chrono>

namespace vesk {

class X11Connection;

/// An answer to a reader of our selection that is too long for one request. Sends each piece when the reader
/// has taken the previous one. Keeps its data even if the selection changes meanwhile.
class SelectionSender final : public QObject
{
    Q_OBJECT

public:
    struct Request
    {
        xcb_window_t requestor = XCB_WINDOW_NONE;
        xcb_atom_t property = XCB_ATOM_NONE;

        friend bool operator==(const Request &, const Request &) = default;
    };

    /// The size of a piece, and the longest data that is sent in one piece, in bytes.
    static constexpr qsizetype kPiece = qsizetype{192} * 1024;

    /// Announces the data in the reader's property. The events of the reader's window must have been selected
    /// before.
    SelectionSender(X11Connection &connection, Request request, xcb_atom_t type, const QByteArray &bytes);

    [[nodiscard]] Request request() const { return m_request; }
    [[nodiscard]] bool isFinished() const { return m_isFinished; }

Q_SIGNALS:
    /// Emitted once, when everything has been sent or the reader is gone or no longer reads.
    void finished();

private:
    void onEvent(const xcb_generic_event_t *event);
    void sendPiece();
    void finish();

    X11Connection &m_connection;
    Request m_request;
    xcb_atom_t m_type;
    QByteArray m_bytes;
    qsizetype m_sent = 0;
    QTimer m_patience;
    QTimer m_total;
    bool m_isFinished = false;
};

} // namespace vesk
