// SPDX-License-Identifier: MIT
#include "platform/x11/selectiontransfer.h"

#include "platform/logging.h"
#include "platform/x11/x11connection.h"

#include <QCoroSignal>

#include <algorithm>
#include <memory>

namespace vesk {

namespace {

using namespace std::chrono_literals;

/// How long an owner whose transfer was abandoned may continue sending: its longest pause, and in total.
constexpr auto kLingeringSilence = 10s;
constexpr auto kLingering = 30s;
/// The largest piece requested from the server at once, in units of 4 bytes.
constexpr uint32_t kPieceWords = 1 << 18;

} // namespace

QCoro::Task<SelectionTransfer::Data> SelectionTransfer::read(X11Connection &connection, xcb_atom_t selection,
                                                             xcb_atom_t target, qsizetype limit,
                                                             ReadingAllowance &allowance)
{
    std::unique_ptr<SelectionTransfer> transfer(
        new SelectionTransfer(connection, selection, target, limit, allowance));
    if (!transfer->m_isFinished)
        co_await qCoro(transfer.get(), &SelectionTransfer::finished);
    Data data = std::move(transfer->m_data);
    if (!transfer->m_hasEnded && !transfer->m_connection.isNull())
        transfer.release()->linger();
    co_return std::move(data);
}

QCoro::Task<SelectionTransfer::Data> SelectionTransfer::read(X11Connection &connection, xcb_atom_t selection,
                                                             xcb_atom_t target, qsizetype limit,
                                                             std::chrono::milliseconds patience)
{
    ReadingAllowance allowance({.silence = patience, .total = std::max(patience, kTotal), .bytes = limit});
    co_return co_await read(connection, selection, target, limit, allowance);
}

SelectionTransfer::SelectionTransfer(X11Connection &connection, xcb_atom_t selection, xcb_atom_t target,
                                     qsizetype limit, ReadingAllowance &allowance)
    : m_connection(&connection)
    , m_window(xcb_generate_id(connection.xcb()))
    , m_property(connection.atom("VESK_SELECTION"))
    , m_limit(std::min(limit, allowance.bytesLeft()))
    , m_allowance(allowance)
{
    m_total.setSingleShot(true);
    connect(&m_total, &QTimer::timeout, this, [this] { finish(Outcome::Stalled); });
    m_total.start(std::max(0ms, allowance.timeLeft()));
    m_stall.setSingleShot(true);
    m_stall.setTimerType(Qt::PreciseTimer);
    m_stall.setInterval(allowance.silence());
    connect(&m_stall, &QTimer::timeout, this, [this] { finish(Outcome::Stalled); });
    connect(&connection, &X11Connection::eventReceived, this, &SelectionTransfer::onEvent);
    // Nothing arrives after that, and no waiting coroutine may outlive the event loop.
    connect(&connection, &QObject::destroyed, this, [this] { finish(Outcome::Refused); });
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection.xcb(), XCB_COPY_FROM_PARENT, m_window, connection.root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    // Owners that claim a selection slightly after the hot key would refuse the hot key's time.
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
    Data first = takeProperty(m_limit);
    if (first.type == m_connection->atom("INCR")) {
        m_isIncremental = true;
        m_stall.start();
        return;
    }
    if (!m_isFinished) {
        m_allowance.take(first.bytes.size());
        m_data = std::move(first);
    }
    end(m_data.outcome);
}

void SelectionTransfer::onChunk()
{
    const Data chunk = takeProperty(m_isFinished ? 0 : m_limit - m_data.bytes.size());
    if (chunk.bytes.isEmpty()) {
        end(Outcome::Complete);
        return;
    }
    m_stall.start();
    if (m_isFinished)
        return;
    m_allowance.take(chunk.bytes.size());
    m_total.start(std::max(0ms, m_allowance.timeLeft()));
    m_data.type = chunk.type;
    m_data.format = chunk.format;
    m_data.bytes += chunk.bytes;
    if (chunk.outcome == Outcome::Cut || m_data.bytes.size() > m_limit)
        finish(Outcome::Cut);
}

SelectionTransfer::Data SelectionTransfer::takeProperty(qsizetype limit)
{
    Data data;
    xcb_connection_t *xcb = m_connection->xcb();
    for (uint32_t rest = 1; rest > 0;) {
        // A property can be as long as the server's memory allows, so fetch it in pieces. Fetching the last
        // piece deletes it.
        const auto offset = static_cast<uint32_t>(data.bytes.size() / 4);
        const auto words =
            static_cast<uint32_t>(std::min<qsizetype>(kPieceWords, (limit - data.bytes.size()) / 4 + 1));
        const auto cookie =
            xcb_get_property(xcb, 1, m_window, m_property, XCB_GET_PROPERTY_TYPE_ANY, offset, words);
        const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(xcb, cookie, nullptr));
        if (!reply || reply->type == XCB_ATOM_NONE)
            return {};
        data.type = reply->type;
        data.format = reply->format;
        data.bytes.append(static_cast<const char *>(xcb_get_property_value(reply.get())),
                          xcb_get_property_value_length(reply.get()));
        rest = reply->bytes_after;
        if (rest > 0 && data.bytes.size() > limit) {
            xcb_delete_property(xcb, m_window, m_property);
            m_connection->flush();
            break;
        }
    }
    data.outcome = data.bytes.size() > limit ? Outcome::Cut : Outcome::Complete;
    return data;
}

void SelectionTransfer::linger()
{
    setParent(m_connection);
    connect(&m_stall, &QTimer::timeout, this, &QObject::deleteLater);
    connect(&m_total, &QTimer::timeout, this, &QObject::deleteLater);
    m_stall.start(kLingeringSilence);
    m_total.start(kLingering);
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
    qCDebug(x11Log) << "selection transfer complete:" << (outcome == Outcome::Complete) << "bytes"
                    << m_data.bytes.size();
    m_stall.stop();
    m_total.stop();
    Q_EMIT finished();
}

} // namespace vesk
