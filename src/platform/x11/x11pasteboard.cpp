// SPDX-License-Identifier: MIT
#include "platform/x11/x11pasteboard.h"

#include "platform/x11/selectioncontent.h"
#include "platform/x11/selectiontransfer.h"
#include "platform/x11/x11connection.h"

#include <QCoreApplication>
#include <QPointer>

#include <xcb/xfixes.h>

#include <algorithm>

namespace vesk {

namespace {

/// If the owner changed during a reading, the result may mix two contents, or be a text whose secrecy was
/// checked with another owner, so the reading is repeated; some applications claim twice for one copy.
constexpr int kAttempts = 3;

/// How soon a clipboard manager claims what it kept of an owner that exited, in server time.
constexpr xcb_timestamp_t kTakeoverMilliseconds = 2000;

xcb_atom_t selectionOf(const X11Connection &connection, X11Pasteboard::Kind kind)
{
    switch (kind) {
    case X11Pasteboard::Kind::Clipboard:
        return connection.atom("CLIPBOARD");
    case X11Pasteboard::Kind::Primary:
        return XCB_ATOM_PRIMARY;
    case X11Pasteboard::Kind::Dragged:
        return connection.atom("XdndSelection");
    }
    Q_UNREACHABLE();
}

bool isLatin1(const QString &text)
{
    return std::ranges::all_of(text, [](QChar character) { return character.row() == 0; });
}

} // namespace

X11Pasteboard::X11Pasteboard(X11Connection &connection, Kind kind)
    : m_connection(connection)
    , m_selection(selectionOf(connection, kind))
    , m_server(connection, m_selection)
{
    connect(&connection, &X11Connection::eventReceived, this, &X11Pasteboard::onEvent);
}

bool X11Pasteboard::hasContents() const
{
    return m_server.isOwner() ? m_server.hasOffer() : hasOwner(m_selection);
}

bool X11Pasteboard::hasOwner(xcb_atom_t selection) const
{
    const auto cookie = xcb_get_selection_owner(m_connection.xcb(), selection);
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection.xcb(), cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

Pasteboard::Origin X11Pasteboard::origin() const
{
    if (m_server.isOwner())
        return {.processIdentifier = QCoreApplication::applicationPid(),
                .delay = std::chrono::milliseconds{0},
                .claim = Claim::Ordinary};
    return m_origin.value_or(Origin());
}

QCoro::Task<QList<PasteboardItem>> X11Pasteboard::pasteboardItems()
{
    const QPointer<X11Pasteboard> self(this);
    ReadingAllowance allowance(selectioncontent::kEverything);
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const qint64 count = m_changeCount;
        const PasteboardItem item =
            co_await selectioncontent::representations(m_connection, m_selection, allowance);
        if (self.isNull())
            break;
        if (count != m_changeCount)
            continue;
        QList<PasteboardItem> items;
        if (!item.isEmpty())
            items.append(item);
        co_return items;
    }
    co_return QList<PasteboardItem>();
}

QCoro::Task<std::optional<QString>> X11Pasteboard::string(Patience patience)
{
    const QPointer<X11Pasteboard> self(this);
    ReadingAllowance allowance(patience == Patience::Long ? selectioncontent::kLong
                                                          : selectioncontent::kShort);
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        const qint64 count = m_changeCount;
        const std::optional<QString> text =
            co_await selectioncontent::text(m_connection, m_selection, allowance);
        if (self.isNull())
            break;
        if (count == m_changeCount)
            co_return text;
    }
    co_return std::nullopt;
}

void X11Pasteboard::clearContents()
{
    // Own the selection with empty contents rather than leave it unowned: some clipboard managers then
    // restore the previous contents.
    writeObjects({});
}

void X11Pasteboard::setString(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    PasteboardItem item;
    for (const char *type : {"UTF8_STRING", "text/plain;charset=utf-8", "text/plain"})
        item.append({.type = QString::fromLatin1(type), .data = utf8});
    if (isLatin1(text))
        item.append({.type = QStringLiteral("STRING"), .data = text.toLatin1()});
    writeObjects({item});
}

void X11Pasteboard::writeObjects(const QList<PasteboardItem> &items)
{
    PasteboardItem merged;
    for (const PasteboardItem &item : items)
        merged.append(item);
    m_server.offer(merged);
    rise();
}

QCoro::Task<> X11Pasteboard::handOver()
{
    const xcb_atom_t manager = m_connection.atom("CLIPBOARD_MANAGER");
    if (!m_server.isOwner() || !m_server.hasOffer() || !hasOwner(manager))
        co_return;
    // The manager reads everything that we offer before it answers. The answer itself does not matter; if
    // anything failed, there is nobody else to hand the contents to.
    constexpr std::chrono::seconds kPatience{1};
    constexpr qsizetype kNothing = 16;
    co_await SelectionTransfer::read(m_connection, manager, m_connection.atom("SAVE_TARGETS"), kNothing,
                                     kPatience);
}

void X11Pasteboard::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != m_connection.xfixesEvent() + XCB_XFIXES_SELECTION_NOTIFY)
        return;
    const auto *notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event);
    // Other listeners for this selection have each change reported to windows of their own.
    if (notify->window != m_server.window())
        return;
    // Our own writes were counted when they were made, and contents from before a write of ours are gone
    // already: counted now, they would look like a change after the write.
    const bool isCounted = notify->owner == m_server.window() || m_server.isOlderThanOffer(event);
    if (notify->selection != m_selection || isCounted)
        return;
    // Most applications claim a selection with the time of the key that the user pressed to copy.
    const auto late = static_cast<int32_t>(notify->timestamp - notify->selection_timestamp);
    m_origin = {.processIdentifier = m_connection.clientProcess(notify->owner),
                .delay = std::chrono::milliseconds{std::max(late, int32_t{0})},
                .claim = claimOf(*notify)};
    if (notify->owner == XCB_WINDOW_NONE)
        m_lossTime = notify->timestamp;
    else
        m_lossTime.reset();
    rise();
}

std::optional<qint64> X11Pasteboard::frontmostProcess() const
{
    const std::optional<quint32> window =
        m_connection.property32(m_connection.root(), m_connection.atom("_NET_ACTIVE_WINDOW"));
    return window && *window != XCB_WINDOW_NONE ? m_connection.clientProcess(*window) : std::nullopt;
}

Pasteboard::Claim X11Pasteboard::claimOf(const xcb_xfixes_selection_notify_event_t &notify) const
{
    const std::optional<qint64> frontmost = frontmostProcess();
    const std::optional<qint64> owner = m_connection.clientProcess(notify.owner);
    const bool areKnown = frontmost && owner;
    if (areKnown && frontmost == owner)
        return Claim::Ordinary;
    if (m_lossTime && notify.timestamp - *m_lossTime < kTakeoverMilliseconds)
        return Claim::AfterLoss;
    return areKnown ? Claim::Aside : Claim::Ordinary;
}

void X11Pasteboard::rise()
{
    ++m_changeCount;
    Q_EMIT changed();
}

} // namespace vesk
