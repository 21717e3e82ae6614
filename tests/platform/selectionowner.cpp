// SPDX-License-Identifier: MIT
#include "selectionowner.h"

#include <cstdlib>
#include <cstring>

namespace {

constexpr qsizetype kPiece = 100'000;

template <typename T>
struct Free
{
    void operator()(T *memory) const { std::free(memory); }
};

} // namespace

SelectionOwner::SelectionOwner(QByteArray text, Manner manner, const char *selection)
    : m_text(std::move(text))
    , m_manner(manner)
    , m_connection(xcb_connect(nullptr, nullptr))
    , m_window(xcb_generate_id(m_connection))
{
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    const xcb_atom_t name = atom(selection);
    xcb_set_selection_owner(m_connection, m_window, name, XCB_CURRENT_TIME);
    // Waits for the server, so that what a test sends on another connection comes after this.
    const auto cookie = xcb_get_selection_owner(m_connection, name);
    using Reply = xcb_get_selection_owner_reply_t;
    const std::unique_ptr<Reply, Free<Reply>> reply(
        xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &SelectionOwner::onReadable);
    onReadable();
}

SelectionOwner::~SelectionOwner()
{
    m_notifier.reset();
    xcb_disconnect(m_connection);
}

xcb_atom_t SelectionOwner::atom(const char *name) const
{
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(std::strlen(name)), name);
    using Reply = xcb_intern_atom_reply_t;
    const std::unique_ptr<Reply, Free<Reply>> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    return reply->atom;
}

void SelectionOwner::onReadable()
{
    using Event = xcb_generic_event_t;
    while (const std::unique_ptr<Event, Free<Event>> event{xcb_poll_for_event(m_connection)}) {
        const auto type = event->response_type & 0x7f;
        if (type == XCB_SELECTION_REQUEST) {
            onRequest(*reinterpret_cast<const xcb_selection_request_event_t *>(event.get()));
        } else if (type == XCB_PROPERTY_NOTIFY) {
            const auto *change = reinterpret_cast<const xcb_property_notify_event_t *>(event.get());
            if (change->atom == m_property && change->state == XCB_PROPERTY_DELETE)
                sendNextPiece();
        }
    }
    xcb_flush(m_connection);
}

void SelectionOwner::onRequest(const xcb_selection_request_event_t &request)
{
    if (request.target == atom("TARGETS")) {
        sendTargets(request);
    } else if (request.target == atom("x-kde-passwordManagerHint")) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                            XCB_ATOM_STRING, 8, 6, "secret");
        notify(request, true);
    } else if (request.target == atom("UTF8_STRING")) {
        ++m_readings;
        sendText(request);
    } else if (m_manner == Manner::Silent) {
        ++m_readings;
    } else {
        notify(request, false);
    }
}

void SelectionOwner::sendTargets(const xcb_selection_request_event_t &request)
{
    QList<xcb_atom_t> targets{atom("TARGETS"), atom("TIMESTAMP")};
    if (m_manner != Manner::NoText)
        targets.append(atom("UTF8_STRING"));
    if (m_manner == Manner::Silent)
        targets.append({atom("text/html"), atom("image/png")});
    if (m_manner == Manner::Secret)
        targets.append(atom("x-kde-passwordManagerHint"));
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        XCB_ATOM_ATOM, 32, static_cast<uint32_t>(targets.size()), targets.constData());
    notify(request, true);
}

void SelectionOwner::sendText(const xcb_selection_request_event_t &request)
{
    if (m_manner == Manner::Silent)
        return;
    if (m_manner == Manner::Incremental || m_manner == Manner::StallsHalfway) {
        m_requestor = request.requestor;
        m_property = request.property;
        m_sent = 0;
        const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_connection, m_requestor, XCB_CW_EVENT_MASK, &events);
        const auto size = static_cast<uint32_t>(m_text.size());
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_requestor, m_property, atom("INCR"), 32, 1,
                            &size);
    } else {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                            request.target, 8, static_cast<uint32_t>(m_text.size()), m_text.constData());
    }
    notify(request, true);
}

void SelectionOwner::sendNextPiece()
{
    if (m_manner == Manner::StallsHalfway && m_sent > 0)
        return;
    const QByteArray piece = m_text.mid(m_sent, kPiece);
    m_sent += piece.size();
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_requestor, m_property, atom("UTF8_STRING"), 8,
                        static_cast<uint32_t>(piece.size()), piece.constData());
    if (piece.isEmpty())
        m_property = XCB_ATOM_NONE;
}

void SelectionOwner::notify(const xcb_selection_request_event_t &request, bool isGiven)
{
    xcb_selection_notify_event_t answer{};
    answer.response_type = XCB_SELECTION_NOTIFY;
    answer.time = request.time;
    answer.requestor = request.requestor;
    answer.selection = request.selection;
    answer.target = request.target;
    answer.property = isGiven ? request.property : xcb_atom_t{XCB_ATOM_NONE};
    xcb_send_event(m_connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&answer));
}
