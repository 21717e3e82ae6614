// SPDX-License-Identifier: MIT
#include "platform/x11/x11connection.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>

#include <xcb/randr.h>
#include <xcb/res.h>
#include <xcb/xfixes.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace vesk {

namespace {

xcb_screen_t *screenOf(xcb_connection_t *connection, int number)
{
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int i = 0; i < number && screens.rem > 1; ++i)
        xcb_screen_next(&screens);
    return screens.data;
}

const xcb_query_extension_reply_t *findExtension(xcb_connection_t *connection, xcb_extension_t &extension)
{
    const xcb_query_extension_reply_t *reply = xcb_get_extension_data(connection, &extension);
    return reply && reply->present ? reply : nullptr;
}

} // namespace

bool X11Connection::hasServer()
{
    xcb_connection_t *connection = xcb_connect(nullptr, nullptr);
    const bool isThere = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return isThere;
}

X11Connection::OpenResult X11Connection::open()
{
    int screenNumber = 0;
    xcb_connection_t *connection = xcb_connect(nullptr, &screenNumber);
    // Owned from here on: even a failed connection must be freed.
    std::unique_ptr<X11Connection> opened(new X11Connection(connection, screenNumber));
    if (xcb_connection_has_error(connection) != 0)
        return {.connection = nullptr, .error = tr("The X server cannot be reached.")};
    const QString error = opened->setUpExtensions();
    if (!error.isEmpty())
        return {.connection = nullptr, .error = error};
    opened->listen();
    return {.connection = std::move(opened), .error = {}};
}

X11Connection::X11Connection(xcb_connection_t *connection, int screenNumber)
    : m_connection(connection)
{
    if (xcb_connection_has_error(connection) == 0)
        m_screen = screenOf(connection, screenNumber);
}

X11Connection::~X11Connection()
{
    m_notifier.reset();
    xcb_disconnect(m_connection);
}

xcb_atom_t X11Connection::atom(const char *name) const
{
    const QByteArray key = QByteArray::fromRawData(name, static_cast<qsizetype>(qstrlen(name)));
    const auto known = m_atoms.constFind(key);
    if (known != m_atoms.cend())
        return *known;
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<uint16_t>(key.size()), name);
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    m_atoms.insert(QByteArray(name), atom);
    return atom;
}

QString X11Connection::atomName(xcb_atom_t atom) const
{
    const auto cookie = xcb_get_atom_name(m_connection, atom);
    const XReply<xcb_get_atom_name_reply_t> reply(xcb_get_atom_name_reply(m_connection, cookie, nullptr));
    if (!reply)
        return {};
    return QString::fromLatin1(xcb_get_atom_name_name(reply.get()),
                               xcb_get_atom_name_name_length(reply.get()));
}

QByteArray X11Connection::property(xcb_window_t window, xcb_atom_t name) const
{
    constexpr uint32_t kMaximumWords = 1 << 16;
    const auto cookie =
        xcb_get_property(m_connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY, 0, kMaximumWords);
    const XReply<xcb_get_property_reply_t> reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply)
        return {};
    const auto *bytes = static_cast<const char *>(xcb_get_property_value(reply.get()));
    return {bytes, xcb_get_property_value_length(reply.get())};
}

uint32_t X11Connection::addEvents(xcb_window_t window, uint32_t events) const
{
    const std::optional<uint32_t> heard = ownEvents(window);
    if (!heard)
        return XCB_EVENT_MASK_NO_EVENT;
    const uint32_t all = *heard | events;
    xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &all);
    return events & ~*heard;
}

void X11Connection::removeEvents(xcb_window_t window, uint32_t events) const
{
    const std::optional<uint32_t> heard = ownEvents(window);
    if (!heard || events == XCB_EVENT_MASK_NO_EVENT)
        return;
    const uint32_t rest = *heard & ~events;
    xcb_change_window_attributes(m_connection, window, XCB_CW_EVENT_MASK, &rest);
}

std::optional<uint32_t> X11Connection::ownEvents(xcb_window_t window) const
{
    const auto cookie = xcb_get_window_attributes(m_connection, window);
    const XReply<xcb_get_window_attributes_reply_t> reply(
        xcb_get_window_attributes_reply(m_connection, cookie, nullptr));
    return reply ? std::optional(reply->your_event_mask) : std::nullopt;
}

std::optional<quint32> X11Connection::property32(xcb_window_t window, xcb_atom_t name) const
{
    const QByteArray bytes = property(window, name);
    if (bytes.size() < qsizetype{sizeof(quint32)})
        return std::nullopt;
    quint32 value = 0;
    std::memcpy(&value, bytes.constData(), sizeof value);
    return value;
}

std::optional<qint64> X11Connection::clientProcess(xcb_window_t window) const
{
    const xcb_res_client_id_spec_t spec{.client = window, .mask = XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID};
    const auto cookie = xcb_res_query_client_ids(m_connection, 1, &spec);
    const XReply<xcb_res_query_client_ids_reply_t> reply(
        xcb_res_query_client_ids_reply(m_connection, cookie, nullptr));
    if (!reply)
        return std::nullopt;
    auto ids = xcb_res_query_client_ids_ids_iterator(reply.get());
    for (; ids.rem > 0; xcb_res_client_id_value_next(&ids)) {
        const bool isPid = (ids.data->spec.mask & XCB_RES_CLIENT_ID_MASK_LOCAL_CLIENT_PID) != 0;
        if (isPid && xcb_res_client_id_value_value_length(ids.data) > 0)
            return *xcb_res_client_id_value_value(ids.data);
    }
    return std::nullopt;
}

QString X11Connection::setUpExtensions()
{
    struct Needed
    {
        xcb_extension_t &extension;
        const char *name;
    };
    const Needed needed[] = {
        {.extension = xcb_xfixes_id, .name = "XFIXES"},
        {.extension = xcb_input_id, .name = "XInputExtension"},
        {.extension = xcb_test_id, .name = "XTEST"},
        {.extension = xcb_res_id, .name = "X-Resource"},
        {.extension = xcb_randr_id, .name = "RANDR"},
    };
    for (const Needed &each : needed)
        xcb_prefetch_extension_data(m_connection, &each.extension);
    for (const Needed &each : needed) {
        if (!findExtension(m_connection, each.extension))
            return tr("The X server lacks the extension %1, which Vesk needs.").arg(QLatin1String(each.name));
    }
    m_xfixesEvent = findExtension(m_connection, xcb_xfixes_id)->first_event;
    m_randrEvent = findExtension(m_connection, xcb_randr_id)->first_event;
    m_inputOpcode = findExtension(m_connection, xcb_input_id)->major_opcode;

    // A client must tell each extension its version before the extension serves it.
    const auto xfixes = xcb_xfixes_query_version(m_connection, 5, 0);
    const auto input = xcb_input_xi_query_version(m_connection, 2, 2);
    const auto res = xcb_res_query_version(m_connection, 1, 2);
    const auto randr = xcb_randr_query_version(m_connection, 1, 4);
    const XReply<void> replies[] = {
        XReply<void>(xcb_xfixes_query_version_reply(m_connection, xfixes, nullptr)),
        XReply<void>(xcb_input_xi_query_version_reply(m_connection, input, nullptr)),
        XReply<void>(xcb_res_query_version_reply(m_connection, res, nullptr)),
        XReply<void>(xcb_randr_query_version_reply(m_connection, randr, nullptr)),
    };
    for (const XReply<void> &reply : replies) {
        if (!reply)
            return tr("The X server's extensions are too old for Vesk.");
    }
    return {};
}

void X11Connection::listen()
{
    m_window = xcb_generate_id(m_connection);
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, root(), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
    const uint32_t rootEvents = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(m_connection, root(), XCB_CW_EVENT_MASK, &rootEvents);
    flush();

    m_notifier =
        std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(m_connection), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11Connection::readEvents);
    // Waiting for a reply also reads events, which the socket then no longer announces.
    const QAbstractEventDispatcher *dispatcher = QCoreApplication::eventDispatcher();
    connect(dispatcher, &QAbstractEventDispatcher::aboutToBlock, this, &X11Connection::readEvents);
}

void X11Connection::readEvents()
{
    while (const XReply<xcb_generic_event_t> next{xcb_poll_for_event(m_connection)})
        Q_EMIT eventReceived(next.get());
    if (xcb_connection_has_error(m_connection) != 0 && m_notifier->isEnabled()) {
        m_notifier->setEnabled(false);
        Q_EMIT lost();
    }
    flush();
}

} // namespace vesk
