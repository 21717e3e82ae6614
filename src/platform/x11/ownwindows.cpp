// SPDX-License-Identifier: MIT
#include "platform/x11/ownwindows.h"

#include "platform/x11/xreply.h"

#include <QGuiApplication>
#include <QWindow>

#include <xcb/xfixes.h>

#include <cstring>

namespace vesk::ownwindows {

namespace {

xcb_connection_t *connection()
{
    const auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t root()
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
}

} // namespace

xcb_window_t idOf(QWindow &window)
{
    return static_cast<xcb_window_t>(window.winId());
}

xcb_atom_t atom(const char *name)
{
    const auto cookie = xcb_intern_atom(connection(), 0, static_cast<uint16_t>(std::strlen(name)), name);
    const XReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection(), cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void setCardinal(QWindow &window, const char *property, quint32 value)
{
    xcb_change_property(connection(), XCB_PROP_MODE_REPLACE, idOf(window), atom(property), XCB_ATOM_CARDINAL,
                        32, 1, &value);
}

void addStates(QWindow &window, const QList<const char *> &states)
{
    QList<xcb_atom_t> atoms;
    for (const char *state : states)
        atoms.append(atom(state));
    xcb_change_property(connection(), XCB_PROP_MODE_APPEND, idOf(window), atom("_NET_WM_STATE"),
                        XCB_ATOM_ATOM, 32, static_cast<uint32_t>(atoms.size()), atoms.constData());
}

void setShape(QWindow &window, const QList<xcb_rectangle_t> &rectangles)
{
    constexpr uint8_t kBounding = 0;
    xcb_xfixes_region_t region = XCB_NONE;
    if (!rectangles.isEmpty()) {
        region = xcb_generate_id(connection());
        xcb_xfixes_create_region(connection(), region, static_cast<uint32_t>(rectangles.size()),
                                 rectangles.constData());
    }
    xcb_xfixes_set_window_shape_region(connection(), idOf(window), kBounding, 0, 0, region);
    if (region != XCB_NONE)
        xcb_xfixes_destroy_region(connection(), region);
}

void requestActivation(xcb_window_t window, xcb_timestamp_t time)
{
    // Source 2 marks a request that the user made with a desktop tool, such as a hot key; some window
    // managers refuse requests from ordinary applications.
    constexpr uint32_t kFromUser = 2;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = kFromUser;
    message.data.data32[1] = time;
    xcb_send_event(connection(), 0, root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection());
}

} // namespace vesk::ownwindows
