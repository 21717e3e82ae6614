// SPDX-License-Identifier: MIT
#include "desktop/clipboardholder.h"

#include "desktop/displayconnection.h"

#include <cstring>
#include <poll.h>

namespace vesk {

namespace {

xcb_atom_t atomOf(xcb_connection_t *connection, const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(connection, 0, quint16(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> reply{xcb_intern_atom_reply(connection, cookie, nullptr)};
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

} // namespace

std::unique_ptr<ClipboardHolder> ClipboardHolder::hold(const QString &displayName, Forms forms)
{
    xcb_connection_t *connection = xcb_connect(displayName.toLatin1().constData(), nullptr);
    std::unique_ptr<ClipboardHolder> holder(new ClipboardHolder(connection, std::move(forms)));
    if (xcb_connection_has_error(connection))
        return nullptr;
    holder->claim();
    holder->m_thread = std::thread([holder = holder.get()] { holder->serve(); });
    return holder;
}

ClipboardHolder::ClipboardHolder(xcb_connection_t *connection, Forms forms)
    : m_connection(connection)
    , m_forms(std::move(forms))
{
}

ClipboardHolder::~ClipboardHolder()
{
    m_isEnding = true;
    if (m_thread.joinable())
        m_thread.join();
    xcb_disconnect(m_connection);
}

void ClipboardHolder::claim()
{
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    m_window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, 0, m_window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(m_connection, m_window, atomOf(m_connection, "CLIPBOARD"), XCB_CURRENT_TIME);
    // The answer to any question says that the server has done what came before it.
    static_cast<void>(atomOf(m_connection, "TARGETS"));
}

void ClipboardHolder::serve()
{
    constexpr int kPollMilliseconds = 20;
    while (!m_isEnding && !xcb_connection_has_error(m_connection)) {
        pollfd descriptor = {xcb_get_file_descriptor(m_connection), POLLIN, 0};
        poll(&descriptor, 1, kPollMilliseconds);
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            if (m_isHanging || (event->response_type & 0x7f) != XCB_SELECTION_REQUEST)
                continue;
            xcb_selection_request_event_t request;
            std::memcpy(&request, event.get(), sizeof request);
            answer(request);
        }
    }
}

void ClipboardHolder::answer(const xcb_selection_request_event_t &request)
{
    bool isGiven = false;
    QList<xcb_atom_t> targets{atomOf(m_connection, "TARGETS")};
    for (const auto &[name, bytes] : m_forms.asKeyValueRange()) {
        targets.append(atomOf(m_connection, name));
        if (targets.constLast() != request.target)
            continue;
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                            request.target, 8, quint32(bytes.size()), bytes.constData());
        isGiven = true;
    }
    if (request.target == targets.constFirst()) {
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                            XCB_ATOM_ATOM, 32, quint32(targets.size()), targets.constData());
        isGiven = true;
    }
    union {
        xcb_selection_notify_event_t notify;
        char bytes[32];
    } event{};
    event.notify.response_type = XCB_SELECTION_NOTIFY;
    event.notify.time = request.time;
    event.notify.requestor = request.requestor;
    event.notify.selection = request.selection;
    event.notify.target = request.target;
    event.notify.property = isGiven ? request.property : xcb_atom_t(XCB_ATOM_NONE);
    xcb_send_event(m_connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, event.bytes);
    xcb_flush(m_connection);
}

} // namespace vesk
