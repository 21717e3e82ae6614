// SPDX-License-Identifier: MIT
#include "platform/x11/selectionsender.h"

#include "platform/x11/x11connection.h"

#include <algorithm>

namespace vesk {

namespace {

/// Do not keep the data for a reader that is stopped in a debugger, or that takes a piece only now and then.
/// The rate is in bytes per second; even a slow line to another machine manages it.
constexpr std::chrono::milliseconds kPatience{10'000};
constexpr qsizetype kSlowestRate = qsizetype{64} * 1024;

} // namespace

SelectionSender::SelectionSender(X11Connection &connection, Request request, xcb_atom_t type,
                                 const QByteArray &bytes)
    : m_connection(connection)
    , m_request(request)
    , m_type(type)
    , m_bytes(bytes)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(kPatience);
    connect(&m_patience, &QTimer::timeout, this, &SelectionSender::finish);
    m_total.setSingleShot(true);
    connect(&m_total, &QTimer::timeout, this, &SelectionSender::finish);
    m_total.start(kPatience + std::chrono::milliseconds{bytes.size() * 1000 / kSlowestRate});
    connect(&connection, &X11Connection::eventReceived, this, &SelectionSender::onEvent);
    const auto size = static_cast<uint32_t>(bytes.size());
    xcb_change_property(connection.xcb(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        connection.atom("INCR"), 32, 1, &size);
    m_patience.start();
}

void SelectionSender::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto *notify = reinterpret_cast<const xcb_property_notify_event_t *>(event);
        if (notify->window == m_request.requestor && notify->atom == m_request.property
            && notify->state == XCB_PROPERTY_DELETE)
            sendPiece();
    } else if (type == XCB_DESTROY_NOTIFY) {
        const auto *notify = reinterpret_cast<const xcb_destroy_notify_event_t *>(event);
        if (notify->window == m_request.requestor)
            finish();
    }
}

void SelectionSender::sendPiece()
{
    if (m_isFinished)
        return;
    // An empty last piece marks the end.
    const qsizetype length = std::min(kPiece, m_bytes.size() - m_sent);
    xcb_change_property(m_connection.xcb(), XCB_PROP_MODE_REPLACE, m_request.requestor, m_request.property,
                        m_type, 8, static_cast<uint32_t>(length), m_bytes.constData() + m_sent);
    m_sent += length;
    if (length == 0)
        finish();
    else
        m_patience.start();
}

void SelectionSender::finish()
{
    if (m_isFinished)
        return;
    m_isFinished = true;
    m_patience.stop();
    m_total.stop();
    m_bytes.clear();
    Q_EMIT finished();
}

} // namespace vesk
