// SPDX-License-Identifier: MIT
#include "platform/x11/x11windows.h"

#include "platform/screens.h"
#include "platform/x11/ownwindows.h"
#include "platform/x11/x11connection.h"

#include <QWindow>

#include <xcb/xfixes.h>

#include <algorithm>
#include <cmath>

namespace vesk {

namespace {

/// The owner of this selection composites the windows of the first screen.
constexpr const char *kCompositor = "_NET_WM_CM_S0";

/// A rounded rectangle as rows of pixels.
QList<xcb_rectangle_t> roundedRows(QSize size, qreal radius)
{
    QList<xcb_rectangle_t> rectangles;
    const auto add = [&rectangles](int x, int y, int width, int height) {
        rectangles.append({.x = static_cast<int16_t>(x),
                           .y = static_cast<int16_t>(y),
                           .width = static_cast<uint16_t>(width),
                           .height = static_cast<uint16_t>(height)});
    };
    const int rows = static_cast<int>(std::ceil(radius));
    for (int row = 0; row < rows; ++row) {
        const qreal up = radius - row - 0.5;
        const int inset =
            static_cast<int>(std::lround(radius - std::sqrt(std::max(0.0, radius * radius - up * up))));
        const int width = size.width() - 2 * inset;
        add(inset, row, width, 1);
        add(inset, size.height() - 1 - row, width, 1);
    }
    add(0, rows, size.width(), size.height() - 2 * rows);
    return rectangles;
}

} // namespace

X11Windows::X11Windows(X11Connection &connection, const Screens &screens)
    : m_connection(connection)
    , m_screens(screens)
    , m_isComposited(hasCompositor())
{
    constexpr uint32_t kOwnerChanges = XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                                       | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                                       | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE;
    xcb_xfixes_select_selection_input(connection.xcb(), connection.window(), connection.atom(kCompositor),
                                      kOwnerChanges);
    connect(&connection, &X11Connection::eventReceived, this, &X11Windows::onEvent);
    constexpr std::chrono::milliseconds kLook{40};
    m_look.setInterval(kLook);
    connect(&m_look, &QTimer::timeout, this, &X11Windows::lookAgain);
}

void X11Windows::prepare(QWindow &window, Kind kind)
{
    window.create();
    if (kind == Kind::Notice)
        return; // Not managed, so there is nobody to notify.
    constexpr quint32 kEveryDesktop = 0xFFFFFFFF;
    ownwindows::setCardinal(window, "_NET_WM_DESKTOP", kEveryDesktop);
    ownwindows::addStates(window, {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER"});
}

bool X11Windows::setFrame(QWindow &window, const QRectF &frame)
{
    const QRect geometry = m_screens.flipped(frame).toRect();
    window.setGeometry(geometry);
    m_placings.removeIf([&window](const Placing &each) { return each.window == &window; });
    m_placings.append(Placing{.window = &window, .geometry = geometry});
    m_look.start();
    return true;
}

void X11Windows::lookAgain()
{
    // Some window managers reserve room for a title bar that the window is not to have, which pushes the
    // window down. If asked again once the window is shown, they place it correctly.
    constexpr int kLooks = 100;
    constexpr int kLooksAtShown = 10;
    for (Placing &each : m_placings) {
        ++each.looks;
        // A busy window manager takes its time.
        if (!each.window || !each.window->isExposed())
            continue;
        ++each.looksAtShown;
        if (each.window->geometry() != each.geometry && each.window->size() == each.geometry.size())
            each.window->setGeometry(each.geometry);
    }
    m_placings.removeIf([](const Placing &each) {
        return each.window.isNull() || each.looks >= kLooks || each.looksAtShown >= kLooksAtShown;
    });
    if (m_placings.isEmpty())
        m_look.stop();
}

void X11Windows::setCornerRadius(QWindow &window, qreal radius)
{
    // In server pixels: Qt would cut along whole points, which is visible on a scaled screen.
    const qreal ratio = window.devicePixelRatio();
    const QSize size = QSizeF(window.size() * ratio).toSize();
    ownwindows::setShape(window,
                         m_isComposited ? QList<xcb_rectangle_t>() : roundedRows(size, radius * ratio));
}

void X11Windows::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != m_connection.xfixesEvent() + XCB_XFIXES_SELECTION_NOTIFY)
        return;
    const auto *notify = reinterpret_cast<const xcb_xfixes_selection_notify_event_t *>(event);
    if (notify->selection != m_connection.atom(kCompositor))
        return;
    const bool isComposited = notify->owner != XCB_WINDOW_NONE;
    if (m_isComposited == isComposited)
        return;
    m_isComposited = isComposited;
    Q_EMIT compositedChanged();
}

bool X11Windows::hasCompositor() const
{
    const auto cookie = xcb_get_selection_owner(m_connection.xcb(), m_connection.atom(kCompositor));
    const XReply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection.xcb(), cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace vesk
