// SPDX-License-Identifier: MIT
#include "platform/x11/selectionserver.h"

#include "platform/x11/x11connection.h"

#include <xcb/xfixes.h>

#include <algorithm>
#include <cstring>

namespace vesk {

SelectionServer::SelectionServer(X11Connection &connection, xcb_atom_t selection)
    : m_connection(connection)
    , m_selection(selection)
    , m_window(xcb_generate_id(connection.xcb()))
{
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, m_window, connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    constexpr uint32_t kOwnerChanges = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                                       | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                                       | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    xcb_xfixes_select_selection_input(connection.xcb(), m_window, selection, kOwnerChanges);
    connection.flush();
    connect(&connection, &X11Connection::eventReceived, this, &SelectionServer::onEvent);
}

SelectionServer::~SelectionServer()
{
    xcb_destroy_window(m_connection.xcb(), m_window);
    m_connection.flush();
}

void SelectionServer::offer(const PasteboardItem &item)
{
    m_representations.clear();
    for (const PasteboardData &data : item) {
        const xcb_atom_t target = m_connection.atom(data.type.toLatin1().constData());
        if (target != XCB_ATOM_NONE && !findRepresentation(target))
            m_representations.append({.target = target, .type = target, .bytes = data.data});
    }
    // The type of the answer to TEXT says which encoding was chosen.
    const xcb_atom_t text = m_connection.atom("TEXT");
    for (const xcb_atom_t encoding : {m_connection.atom("UTF8_STRING"), xcb_atom_t{XCB_ATOM_STRING}}) {
        const Representation *encoded = findRepresentation(encoding);
        if (encoded && !findRepresentation(text)) {
            const Representation copy{.target = text, .type = encoding, .bytes = encoded->bytes};
            m_representations.append(copy);
        }
    }
    // If we sent a time of our own, the server would silently refuse it if another application had claimed
    // the selection after that time. The server uses its own time and reports it with the change.
    const auto cookie = xcb_set_selection_owner(m_connection.xcb(), m_window, m_selection, XCB_CURRENT_TIME);
    m_claim = cookie.sequence;
    m_isOwner = true;
    m_connection.flush();
}

bool SelectionServer::isOlderThanOffer(const xcb_generic_event_t *event) const
{
    // An event carries the number of our last request that the server had processed by then.
    return m_claim && !isAtOrAfter(event->full_sequence, *m_claim);
}

void SelectionServer::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    if (type == XCB_SELECTION_REQUEST) {
        const auto *request = reinterpret_cast<const xcb_selection_request_event_t *>(event);
        if (request->owner == m_window && request->selection == m_selection)
            onRequest(*request);
    } else if (type == XCB_SELECTION_CLEAR) {
        const auto *clear = reinterpret_cast<const xcb_selection_clear_event_t *>(event);
        // Ignore the loss of an offer that has been replaced.
        if (clear->owner == m_window && clear->selection == m_selection && !isOlderThanOffer(event)) {
            m_isOwner = false;
            m_representations.clear();
        }
    } else if (type == m_connection.xfixesEvent() + XCB_XFIXES_SELECTION_NOTIFY) {
        const auto *notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event);
        if (notify->selection == m_selection && notify->owner == m_window)
            m_time = notify->selection_timestamp;
    }
}

void SelectionServer::onRequest(const xcb_selection_request_event_t &request)
{
    // Obsolete clients name no property and expect the target's name to be used.
    const xcb_atom_t property = request.property == XCB_ATOM_NONE ? request.target : request.property;
    const SelectionSender::Request answer{.requestor = request.requestor, .property = property};
    bool isGiven = false;
    if (m_isOwner) {
        const bool isMultiple = request.target == m_connection.atom("MULTIPLE");
        isGiven = isMultiple ? convertMultiple(answer) : convert(answer, request.target);
    }
    // Sent events have the size of the wire format, which the type may be smaller than.
    union {
        xcb_selection_notify_event_t notify;
        char bytes[32];
    } event{};
    event.notify.response_type = XCB_SELECTION_NOTIFY;
    event.notify.time = request.time;
    event.notify.requestor = request.requestor;
    event.notify.selection = request.selection;
    event.notify.target = request.target;
    event.notify.property = isGiven ? property : xcb_atom_t{XCB_ATOM_NONE};
    xcb_send_event(m_connection.xcb(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, event.bytes);
    m_connection.flush();
}

bool SelectionServer::convert(SelectionSender::Request request, xcb_atom_t target)
{
    if (target == m_connection.atom("TARGETS")) {
        putTargets(request);
        return true;
    }
    if (target == m_connection.atom("TIMESTAMP")) {
        xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                            XCB_ATOM_INTEGER, 32, 1, &m_time);
        return true;
    }
    const Representation *representation = findRepresentation(target);
    if (!representation)
        return false;
    return put(request, *representation);
}

bool SelectionServer::convertMultiple(SelectionSender::Request request)
{
    struct Pair
    {
        xcb_atom_t target;
        xcb_atom_t property;
    };
    const QByteArray bytes = m_connection.property(request.requestor, request.property);
    QList<Pair> pairs(bytes.size() / qsizetype{sizeof(Pair)});
    if (pairs.isEmpty() || pairs.size() > kMaximumPairs)
        return false;
    std::memcpy(pairs.data(), bytes.constData(), static_cast<size_t>(pairs.size()) * sizeof(Pair));
    for (Pair &pair : pairs) {
        const SelectionSender::Request single{.requestor = request.requestor, .property = pair.property};
        // Targets that cannot be converted are removed from the list.
        if (pair.property == XCB_ATOM_NONE || !convert(single, pair.target))
            pair.target = XCB_ATOM_NONE;
    }
    xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        m_connection.atom("ATOM_PAIR"), 32, static_cast<uint32_t>(2 * pairs.size()),
                        pairs.constData());
    return true;
}

void SelectionServer::putTargets(SelectionSender::Request request)
{
    QList<xcb_atom_t> targets{m_connection.atom("TARGETS"), m_connection.atom("TIMESTAMP"),
                              m_connection.atom("MULTIPLE"), m_connection.atom("SAVE_TARGETS")};
    for (const Representation &representation : std::as_const(m_representations))
        targets.append(representation.target);
    xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        XCB_ATOM_ATOM, 32, static_cast<uint32_t>(targets.size()), targets.constData());
}

bool SelectionServer::put(SelectionSender::Request request, const Representation &representation)
{
    if (representation.bytes.size() > SelectionSender::kPiece)
        return sendInPieces(request, representation);
    xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        representation.type, 8, static_cast<uint32_t>(representation.bytes.size()),
                        representation.bytes.constData());
    return true;
}

bool SelectionServer::sendInPieces(SelectionSender::Request request, const Representation &representation)
{
    // A reader that reuses a property has given up its earlier request.
    std::erase_if(m_senders, [&](const auto &sender) { return sender->request() == request; });
    if (m_senders.size() >= kMaximumSenders)
        return false;
    // Vesk may listen for other events of this window, especially of the root window.
    if (!m_heardEvents.contains(request.requestor)) {
        constexpr uint32_t kEvents = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        m_heardEvents.insert(request.requestor, m_connection.addEvents(request.requestor, kEvents));
    }
    auto sender =
        std::make_unique<SelectionSender>(m_connection, request, representation.type, representation.bytes);
    connect(
        sender.get(), &SelectionSender::finished, this, [this, request] { onSent(request); },
        Qt::QueuedConnection);
    m_senders.push_back(std::move(sender));
    return true;
}

void SelectionServer::onSent(SelectionSender::Request request)
{
    std::erase_if(m_senders,
                  [&](const auto &sender) { return sender->request() == request && sender->isFinished(); });
    const bool isRead = std::ranges::any_of(
        m_senders, [&](const auto &sender) { return sender->request().requestor == request.requestor; });
    if (isRead)
        return;
    m_connection.removeEvents(request.requestor, m_heardEvents.take(request.requestor));
    m_connection.flush();
}

const SelectionServer::Representation *SelectionServer::findRepresentation(xcb_atom_t target) const
{
    const auto found = std::ranges::find(m_representations, target, &Representation::target);
    return found == m_representations.cend() ? nullptr : &*found;
}

} // namespace vesk
