// SPDX-License-Identifier: MIT
#pragma once

#include "platform/pasteboard.h"
#include "platform/x11/selectionsender.h"

#include <QHash>
#include <QList>
#include <QObject>

#include <xcb/xcb.h>

#include <memory>
#include <optional>
#include <vector>

namespace vesk {

class X11Connection;

/// Owns a selection for Vesk and answers its readers, including Vesk itself, until another application claims
/// it.
class SelectionServer final : public QObject
{
    Q_OBJECT

public:
    /// How many forms a reader may request at once, and how many long answers may be under way. No honest
    /// reader gets near these limits.
    static constexpr qsizetype kMaximumPairs = 256;
    static constexpr size_t kMaximumSenders = 256;

    SelectionServer(X11Connection &connection, xcb_atom_t selection);
    /// Gives up the selection if it has it.
    ~SelectionServer() override;

    /// Claims the selection and offers exactly these representations, plus TEXT if they contain text. An
    /// empty list is an offer too: readers then find the selection empty.
    void offer(const PasteboardItem &item);

    /// Whether we own the selection with the last offer.
    [[nodiscard]] bool isOwner() const { return m_isOwner; }
    /// Whether the last offer holds anything.
    [[nodiscard]] bool hasOffer() const { return !m_representations.isEmpty(); }
    /// The window that owns the selection while it is ours.
    [[nodiscard]] xcb_window_t window() const { return m_window; }
    /// Whether the server generated this event before it gave us the selection for the last offer.
    [[nodiscard]] bool isOlderThanOffer(const xcb_generic_event_t *event) const;

private:
    struct Representation
    {
        xcb_atom_t target;
        xcb_atom_t type;
        QByteArray bytes;
    };

    void onEvent(const xcb_generic_event_t *event);
    void onRequest(const xcb_selection_request_event_t &request);
    /// Writes the form `target` to the reader's property. Returns false if there is no such form.
    bool convert(SelectionSender::Request request, xcb_atom_t target);
    bool convertMultiple(SelectionSender::Request request);
    void putTargets(SelectionSender::Request request);
    bool put(SelectionSender::Request request, const Representation &representation);
    bool sendInPieces(SelectionSender::Request request, const Representation &representation);
    void onSent(SelectionSender::Request request);
    [[nodiscard]] const Representation *findRepresentation(xcb_atom_t target) const;

    X11Connection &m_connection;
    xcb_atom_t m_selection;
    xcb_window_t m_window;
    bool m_isOwner = false;
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;
    /// Sequence number of the request that claimed the selection for the last offer.
    std::optional<unsigned int> m_claim;
    QList<Representation> m_representations;
    std::vector<std::unique_ptr<SelectionSender>> m_senders;
    /// The events of the readers' windows that are selected for the senders.
    QHash<xcb_window_t, uint32_t> m_heardEvents;
};

} // namespace vesk
