// SPDX-License-Identifier: MIT
#include "platform/x11/primaryselection.h"

#include "platform/x11/selectioncontent.h"
#include "platform/x11/selectiontransfer.h"
#include "platform/x11/x11connection.h"

#include <QHash>
#include <QPointer>

#include <xcb/xfixes.h>

#include <cstring>

namespace vesk {

namespace {

constexpr qsizetype kSmall = 1 << 16; // bytes
/// For requests that nobody waits for.
constexpr std::chrono::seconds kPatience{1};

} // namespace

PrimarySelection::PrimarySelection(X11Connection &connection)
    : m_connection(connection)
{
    constexpr uint32_t kOwnerChanges = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                                       | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                                       | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    xcb_xfixes_select_selection_input(connection.xcb(), connection.window(), XCB_ATOM_PRIMARY, kOwnerChanges);
    const auto cookie = xcb_get_selection_owner(connection.xcb(), XCB_ATOM_PRIMARY);
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(connection.xcb(), cookie, nullptr));
    m_claim.owner = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    connect(&connection, &X11Connection::eventReceived, this, &PrimarySelection::onEvent);
    if (m_claim.owner != XCB_WINDOW_NONE)
        askTime();
}

QCoro::Task<std::optional<QString>> PrimarySelection::text()
{
    const QPointer<PrimarySelection> self(this);
    const Claim asked = m_claim;
    const std::optional<QString> text = co_await selectioncontent::text(m_connection, XCB_ATOM_PRIMARY);
    // The contents may be the next owner's, while what was asked about them, such as whether they are secret,
    // came from the first.
    if (self.isNull() || m_claim.number != asked.number)
        co_return std::nullopt;
    co_return text;
}

QCoro::Task<std::optional<size_t>> PrimarySelection::fingerprint()
{
    const QPointer<PrimarySelection> self(this);
    const Claim asked = m_claim;
    const xcb_atom_t target = m_connection.atom("UTF8_STRING");
    const SelectionTransfer::Data data =
        co_await SelectionTransfer::read(m_connection, XCB_ATOM_PRIMARY, target, kSmall, kPatience);
    const bool isRead = data.outcome != SelectionTransfer::Outcome::Refused
                        && data.outcome != SelectionTransfer::Outcome::Stalled;
    if (self.isNull() || m_claim.number != asked.number || !isRead)
        co_return std::nullopt;
    co_return qHash(data.bytes.left(kSmall), static_cast<size_t>(QHashSeed::globalSeed()));
}

void PrimarySelection::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != m_connection.xfixesEvent() + XCB_XFIXES_SELECTION_NOTIFY)
        return;
    const auto *notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event);
    // The pasteboard for this selection has each claim reported to a window of its own.
    if (notify->selection != XCB_ATOM_PRIMARY || notify->window != m_connection.window())
        return;
    m_claim = {.owner = notify->owner, .time = notify->selection_timestamp, .number = m_claim.number + 1};
    Q_EMIT claimed();
}

QCoro::Task<> PrimarySelection::askTime()
{
    const QPointer<PrimarySelection> self(this);
    const Claim asked = m_claim;
    const xcb_atom_t target = m_connection.atom("TIMESTAMP");
    const SelectionTransfer::Data data =
        co_await SelectionTransfer::read(m_connection, XCB_ATOM_PRIMARY, target, kSmall);
    // If the owner has changed meanwhile, the new owner's time is already known.
    if (self.isNull() || m_claim.number != asked.number
        || data.outcome != SelectionTransfer::Outcome::Complete
        || data.bytes.size() < qsizetype{sizeof m_claim.time})
        co_return;
    std::memcpy(&m_claim.time, data.bytes.constData(), sizeof m_claim.time);
}

} // namespace vesk
