// SPDX-License-Identifier: MIT
#include "platform/x11/selectiontransfer.h"

#include "platform/x11/x11connection.h"

#include <QCoroSignal>

#include <memory>

namespace vesk {

QCoro::Task<SelectionTransfer::Data> SelectionTransfer::read(X11Connection &connection, xcb_atom_t selection,
                                                             xcb_atom_t target, qsizetype limit,
                                                             std::chrono::milliseconds patience)
{
    std::unique_ptr<SelectionTransfer> transfer(
        new SelectionTransfer(connection, selection, target, limit, patience));
    if (!transfer->m_isFinished)
        co_await qCoro(transfer.get(), &SelectionTransfer::finished);
    Data data = std::move(transfer->m_data);
    if (!transfer->m_hasEnded && !transfer->m_connection.isNull())
        transfer.release()->linger();
    co_return std::move(data);
}

SelectionTransfer::SelectionTransfer(X11Connection &connection, xcb_atom_t selection, xcb_atom_t target,
                                     qsizetype limit, std::chrono::milliseconds patience)
    : m_connection(&connection)
    , m_window(xcb_generate_id(connection.xcb()))
    , m_property(connection.atom("VESK_SELECTION"))
    , m_limit(limit)
{
    m_stall.setSingleShot(true);
    m_stall.setTimerType(Qt::PreciseTimer);
    m_stall.setInterval(patience);
    connect(&m_stall, &QTimer::timeout, this, [this] { finish(Outcome::Stalled); });
    connect(&connection, &X11Connection::eventReceived, this, &SelectionTransfer::onEvent);
    // Nothing comes any more then, and whoever waits may not outlive the event loop.
    connect(&connection, &QObject::destroyed, this, [this] { finish(Outcome::Refused); });
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, m_window, connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    // The time of the hot key would be refused by owners that claim a selection a little after it.
    xcb_convert_selection(connection.xcb(), m_window, selection, target, m_property, XCB_CURRENT_TIME);
    connection.flush();
    m_stall.start();
}

SelectionTransfer::~SelectionTransfer()
{
    if (m_connection.isNull())
        return;
    xcb_destroy_window(m_connection->xcb(), m_window);
    m_connection->flush();
}

void SelectionTransfer::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    if (type == XCB_SELECTION_NOTIFY) {
        const auto *notify = reinterpret_cast<const xcb_selection_notify_event_t *>(event);
        if (notify->requestor == m_window)
            onNotify(notify->property);
    } else if (type == XCB_PROPERTY_NOTIFY && m_isIncremental) {
        const auto *notify = reinterpret_cast<const xcb_property_notify_event_t *>(event);
        if (notify->window == m_window && notify->atom == m_property
            && notify->state == XCB_PROPERTY_NEW_VALUE)
            onChunk();
    }
}

void SelectionTransfer::onNotify(xcb_atom_t property)
{
    if (property == XCB_ATOM_NONE || m_isIncremental) {
        end(Outcome::Refused);
        return;
    }
    Data first = takeProperty();
    if (first.type == m_connection->atom("INCR")) {
        m_isIncremental = true;
        m_stall.start();
        return;
    }
    m_data = std::move(first);
    end(m_data.type == XCB_ATOM_NONE ? Outcome::Refused : Outcome::Complete);
}

void SelectionTransfer::onChunk()
{
    const Data chunk = takeProperty();
    if (chunk.bytes.isEmpty()) {
        end(Outcome::Complete);
        return;
    }
    if (m_isFinished) {
        m_stall.start();
        return;
    }
    m_data.type = chunk.type;
    m_data.format = chunk.format;
    m_data.bytes += chunk.bytes;
    if (m_data.bytes.size() > m_limit)
        finish(Outcome::Complete);
    else
        m_stall.start();
}

SelectionTransfer::Data SelectionTransfer::takeProperty()
{
    constexpr uint32_t kWhole = 1 << 28;
    const auto cookie =
        xcb_get_property(m_connection->xcb(), 1, m_window, m_property, XCB_GET_PROPERTY_TYPE_ANY, 0, kWhole);
    const XReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection->xcb(), cookie, nullptr));
    if (!reply)
        return {};
    const auto *bytes = static_cast<const char *>(xcb_get_property_value(reply.get()));
    return {.type = reply->type,
            .format = reply->format,
            .bytes = QByteArray(bytes, xcb_get_property_value_length(reply.get()))};
}

void SelectionTransfer::linger()
{
    constexpr std::chrono::seconds kPatience{10};
    setParent(m_connection);
    connect(&m_stall, &QTimer::timeout, this, &QObject::deleteLater);
    m_stall.setInterval(kPatience);
    m_stall.start();
}

void SelectionTransfer::end(Outcome outcome)
{
    m_hasEnded = true;
    if (m_isFinished)
        deleteLater();
    else
        finish(outcome);
}

void SelectionTransfer::finish(Outcome outcome)
{
    if (m_isFinished)
        return;
    m_isFinished = true;
    m_data.outcome = outcome;
    m_stall.stop();
    Q_EMIT finished();
}

} // namespace vesk
