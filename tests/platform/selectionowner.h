// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QSocketNotifier>

#include <xcb/xcb.h>

#include <memory>

/// An application that owns PRIMARY or another selection, well-behaved or not, on a connection of its own.
class SelectionOwner final : public QObject
{
    Q_OBJECT

public:
    enum class Manner {
        Whole,
        /// In pieces, as long texts are sent.
        Incremental,
        /// In pieces, of which only the first comes.
        StallsHalfway,
        /// Lists its targets and then never answers.
        Silent,
        /// Offers no text at all.
        NoText,
        /// Says that its text is a password.
        Secret,
    };

    SelectionOwner(QByteArray text, Manner manner, const char *selection = "PRIMARY");
    ~SelectionOwner() override;

    /// How often its content was asked for.
    [[nodiscard]] int readings() const { return m_readings; }
    /// Whether a reader has yet to take pieces.
    [[nodiscard]] bool isSending() const { return m_property != XCB_ATOM_NONE; }

private:
    [[nodiscard]] xcb_atom_t atom(const char *name) const;
    void onReadable();
    void onRequest(const xcb_selection_request_event_t &request);
    void sendTargets(const xcb_selection_request_event_t &request);
    void sendText(const xcb_selection_request_event_t &request);
    void sendNextPiece();
    void notify(const xcb_selection_request_event_t &request, bool isGiven);

    QByteArray m_text;
    Manner m_manner;
    xcb_connection_t *m_connection;
    xcb_window_t m_window;
    std::unique_ptr<QSocketNotifier> m_notifier;
    int m_readings = 0;
    /// The transfer in pieces that runs; no property for none.
    xcb_window_t m_requestor = XCB_WINDOW_NONE;
    xcb_atom_t m_property = XCB_ATOM_NONE;
    qsizetype m_sent = 0;
};
