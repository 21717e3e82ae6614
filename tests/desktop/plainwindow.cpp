// SPDX-License-Identifier: MIT
#include "desktop/plainwindow.h"

namespace vesk {

PlainWindow::PlainWindow(DisplayConnection &display, const QString &title, const QRect &geometry)
    : m_display(display)
    , m_id(xcb_generate_id(display.xcb()))
    , m_title(title)
{
    xcb_connection_t *xcb = display.xcb();
    const quint32 white = 0xffffff;
    xcb_create_window(xcb, XCB_COPY_FROM_PARENT, m_id, display.root(), qint16(geometry.x()),
                      qint16(geometry.y()), quint16(geometry.width()), quint16(geometry.height()), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL, &white);
    const QByteArray name = title.toUtf8();
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, m_id, display.atom("_NET_WM_NAME"),
                        display.atom("UTF8_STRING"), 8, quint32(name.size()), name.constData());
    // Accepts the focus when it is given to it.
    constexpr std::array<quint32, 9> hints{1, 1};
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, m_id, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 32,
                        quint32(hints.size()), hints.data());
}

PlainWindow::~PlainWindow()
{
    xcb_destroy_window(m_display.xcb(), m_id);
    xcb_flush(m_display.xcb());
}

void PlainWindow::setStrut(const std::array<quint32, 12> &strut)
{
    xcb_connection_t *xcb = m_display.xcb();
    const xcb_atom_t dock = m_display.atom("_NET_WM_WINDOW_TYPE_DOCK");
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, m_id, m_display.atom("_NET_WM_WINDOW_TYPE"),
                        XCB_ATOM_ATOM, 32, 1, &dock);
    xcb_change_property(xcb, XCB_PROP_MODE_REPLACE, m_id, m_display.atom("_NET_WM_STRUT_PARTIAL"),
                        XCB_ATOM_CARDINAL, 32, quint32(strut.size()), strut.data());
    xcb_flush(xcb);
}

void PlainWindow::setFullScreen()
{
    const xcb_atom_t state = m_display.atom("_NET_WM_STATE_FULLSCREEN");
    xcb_change_property(m_display.xcb(), XCB_PROP_MODE_REPLACE, m_id, m_display.atom("_NET_WM_STATE"),
                        XCB_ATOM_ATOM, 32, 1, &state);
}

void PlainWindow::show()
{
    xcb_map_window(m_display.xcb(), m_id);
    xcb_flush(m_display.xcb());
}

Window PlainWindow::window() const
{
    return {m_id, m_title, 0, {}, false};
}

} // namespace vesk
