// SPDX-License-Identifier: MIT
#include "platform/x11/xsettings.h"

#include "platform/x11/x11connection.h"
#include "platform/x11/xsettingsdata.h"

#include <xcb/xfixes.h>

namespace vesk {

namespace {

/// The owner of this selection manages the settings of the first screen, in the property below.
constexpr const char *kManager = "_XSETTINGS_S0";
constexpr const char *kSettings = "_XSETTINGS_SETTINGS";

} // namespace

XSettings::XSettings(X11Connection &connection)
    : m_connection(connection)
{
    constexpr uint32_t kOwnerChanges = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                                       | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                                       | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    xcb_xfixes_select_selection_input(connection.xcb(), connection.window(), connection.atom(kManager),
                                      kOwnerChanges);
    connect(&connection, &X11Connection::eventReceived, this, &XSettings::onEvent);
    follow();
}

void XSettings::onEvent(const xcb_generic_event_t *event)
{
    const auto type = event->response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto *notify = reinterpret_cast<const xcb_property_notify_event_t *>(event);
        if (m_owner != XCB_WINDOW_NONE && notify->window == m_owner)
            read();
    } else if (type == m_connection.xfixesEvent() + XCB_XFIXES_SELECTION_NOTIFY) {
        const auto *notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event);
        if (notify->selection == m_connection.atom(kManager))
            follow();
    }
}

void XSettings::follow()
{
    const auto cookie = xcb_get_selection_owner(m_connection.xcb(), m_connection.atom(kManager));
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection.xcb(), cookie, nullptr));
    m_owner = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (m_owner != XCB_WINDOW_NONE) {
        const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_connection.xcb(), m_owner, XCB_CW_EVENT_MASK, &events);
    }
    read();
}

void XSettings::read()
{
    // Without a manager, for example while one is replaced by another, the last settings stay valid.
    if (m_owner == XCB_WINDOW_NONE)
        return;
    const DesktopLooks looks =
        looksFrom(xsettingsFrom(m_connection.property(m_owner, m_connection.atom(kSettings))));
    if (m_looks == looks)
        return;
    m_looks = looks;
    Q_EMIT changed();
}

} // namespace vesk
