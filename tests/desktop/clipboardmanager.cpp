// SPDX-License-Identifier: MIT
#include "desktop/clipboardmanager.h"

#include "desktop/displayconnection.h"

#include <cstring>
#include <poll.h>

using namespace std::chrono_literals;

namespace vesk {

std::unique_ptr<ClipboardManager> ClipboardManager::start(const QString &displayName, Manner manner)
{
    xcb_connection_t *connection = xcb_connect(displayName.toLatin1().constData(), nullptr);
    std::unique_ptr<ClipboardManager> manager(new ClipboardManager(displayName, manner, connection));
    if (xcb_connection_has_error(connection))
        return nullptr;
    manager->claim();
    manager->m_thread = std::thread([manager = manager.get()] { manager->serve(); });
    return manager;
}

ClipboardManager::ClipboardManager(QString displayName, Manner manner, xcb_connection_t *connection)
    : m_displayName(std::move(displayName))
    , m_manner(manner)
    , m_connection(connection)
{
}

ClipboardManager::~ClipboardManager()
{
    m_isEnding = true;
    if (m_thread.joinable())
        m_thread.join();
    xcb_disconnect(m_connection);
}

void ClipboardManager::claim()
{
    constexpr std::string_view kName = "CLIPBOARD_MANAGER";
    const auto cookie = xcb_intern_atom(m_connection, 0, kName.size(), kName.data());
    const Reply<xcb_intern_atom_reply_t> atom{xcb_intern_atom_reply(m_connection, cookie, nullptr)};
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    const xcb_window_t window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, 0, window, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    if (atom)
        xcb_set_selection_owner(m_connection, window, atom->atom, XCB_CURRENT_TIME);
    const auto question = xcb_get_input_focus(m_connection);
    const Reply<xcb_get_input_focus_reply_t> done{xcb_get_input_focus_reply(m_connection, question, nullptr)};
}

void ClipboardManager::serve()
{
    constexpr int kPollMilliseconds = 20;
    while (!m_isEnding && !xcb_connection_has_error(m_connection)) {
        pollfd descriptor = {xcb_get_file_descriptor(m_connection), POLLIN, 0};
        poll(&descriptor, 1, kPollMilliseconds);
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            if ((event->response_type & 0x7f) != XCB_SELECTION_REQUEST || m_manner == Manner::Hanging)
                continue;
            xcb_selection_request_event_t request;
            std::memcpy(&request, event.get(), sizeof request);
            save(request);
        }
    }
}

void ClipboardManager::save(const xcb_selection_request_event_t &request)
{
    const std::unique_ptr<DisplayConnection> display = DisplayConnection::open(m_displayName);
    const auto text = display ? display->readForm("CLIPBOARD", "UTF8_STRING", 1s) : std::nullopt;
    if (text)
        m_saved = ClipboardHolder::hold(m_displayName, {{"UTF8_STRING", *text}});
    union {
        xcb_selection_notify_event_t notify;
        char bytes[32];
    } event{};
    event.notify.response_type = XCB_SELECTION_NOTIFY;
    event.notify.time = request.time;
    event.notify.requestor = request.requestor;
    event.notify.selection = request.selection;
    event.notify.target = request.target;
    event.notify.property = text ? request.property : xcb_atom_t(XCB_ATOM_NONE);
    xcb_send_event(m_connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, event.bytes);
    xcb_flush(m_connection);
}

} // namespace vesk
