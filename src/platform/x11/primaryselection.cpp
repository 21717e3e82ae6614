// SPDX-License-Identifier: MIT
#include "platform/x11/primaryselection.h"

#include "platform/x11/selectioncontent.h"
#include "platform/x11/selectiontransfer.h"
#include "platform/x11/x11connection.h"

#include <QPointer>

#include <xcb/xfixes.h>

#include <cstring>

namespace vesk {

namespace {

constexpr qsizetype kSmall = 1 << 16; // bytes

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
    m_owner = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    connect(&connection, &X11Connection::eventReceived, this, &PrimarySelection::onEvent);
    if (m_owner != XCB_WINDOW_NONE)
        askTimestamp();
}

std::optional<qint64> PrimarySelection::ownerProcess() const
{
    return m_owner == XCB_WINDOW_NONE ? std::nullopt : m_connection.clientProcess(m_owner);
}

QCoro::Task<std::optional<QString>> PrimarySelection::text()
{
    return selectioncontent::text(m_connection, XCB_ATOM_PRIMARY);
}

void PrimarySelection::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != m_connection.xfixesEvent() + XCB_XFIXES_SELECTION_NOTIFY)
        return;
    const auto *notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event);
    if (notify->selection != XCB_ATOM_PRIMARY)
        return;
    m_owner = notify->owner;
    m_timestamp = notify->selection_timestamp;
}

QCoro::Task<> PrimarySelection::askTimestamp()
{
    const QPointer<PrimarySelection> self(this);
    const xcb_window_t owner = m_owner;
    const xcb_atom_t target = m_connection.atom("TIMESTAMP");
    const SelectionTransfer::Data data =
        co_await SelectionTransfer::read(m_connection, XCB_ATOM_PRIMARY, target, kSmall);
    // The owner may have changed meanwhile, and then the new one's time is known already.
    if (self.isNull() || owner != m_owner || m_timestamp != 0
        || data.outcome != SelectionTransfer::Outcome::Complete
        || data.bytes.size() < qsizetype{sizeof m_timestamp})
        co_return;
    std::memcpy(&m_timestamp, data.bytes.constData(), sizeof m_timestamp);
}

} // namespace vesk
