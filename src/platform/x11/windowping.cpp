// SPDX-License-Identifier: MIT
#include "platform/x11/windowping.h"

#include "platform/x11/x11connection.h"

#include <cstring>

namespace vesk {

namespace {

/// Whether the window answers pings from clients other than the window manager.
bool takesPings(const X11Connection &connection, xcb_window_t window)
{
    // Qt answers only the window manager; GTK answers everyone.
    if (connection.property(window, connection.atom("_GTK_APPLICATION_ID")).isEmpty())
        return false;
    const QByteArray bytes = connection.property(window, connection.atom("WM_PROTOCOLS"));
    const xcb_atom_t ping = connection.atom("_NET_WM_PING");
    for (qsizetype at = 0; at + qsizetype{sizeof ping} <= bytes.size(); at += sizeof ping) {
        if (std::memcmp(bytes.constData() + at, &ping, sizeof ping) == 0)
            return true;
    }
    return false;
}

} // namespace

WindowPing::WindowPing(X11Connection &connection, xcb_window_t window)
    : m_connection(&connection)
    , m_window(window)
{
    if (!takesPings(connection, window)) {
        m_isAnswered = true;
        return;
    }
    connect(&connection, &X11Connection::eventReceived, this, &WindowPing::onEvent);
    listenToAnswers(true);
    ask();
}

WindowPing::~WindowPing()
{
    if (!m_connection.isNull())
        listenToAnswers(false);
}

void WindowPing::ask()
{
    if (m_connection.isNull() || m_isAnswered)
        return;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = m_window;
    message.type = m_connection->atom("WM_PROTOCOLS");
    message.data.data32[0] = m_connection->atom("_NET_WM_PING");
    message.data.data32[1] = m_connection->userTime();
    message.data.data32[2] = m_window;
    xcb_send_event(m_connection->xcb(), 0, m_window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&message));
    m_connection->flush();
}

void WindowPing::listenToAnswers(bool isListening)
{
    // Applications send the answer to the root window, as they do for the window manager. All windows that
    // appear and disappear are reported there too, so listen no longer than necessary.
    const uint32_t events =
        XCB_EVENT_MASK_PROPERTY_CHANGE | (isListening ? uint32_t{XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY} : 0U);
    xcb_change_window_attributes(m_connection->xcb(), m_connection->root(), XCB_CW_EVENT_MASK, &events);
    m_connection->flush();
}

void WindowPing::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != XCB_CLIENT_MESSAGE)
        return;
    const auto *message = reinterpret_cast<const xcb_client_message_event_t *>(event);
    if (message->window == m_connection->root() && message->type == m_connection->atom("WM_PROTOCOLS")
        && message->data.data32[0] == m_connection->atom("_NET_WM_PING")
        && message->data.data32[2] == m_window)
        m_isAnswered = true;
}

} // namespace vesk
