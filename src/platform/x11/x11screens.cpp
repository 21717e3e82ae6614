// SPDX-License-Identifier: MIT
#include "platform/x11/x11screens.h"

#include "platform/x11/x11connection.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include <algorithm>
#include <cstring>
#include <span>

namespace vesk {

namespace {

/// A screen in server pixels: Qt scales its size but not its position.
QRect pixelsOf(const QScreen &screen)
{
    const QRect geometry = screen.geometry();
    const qreal ratio = screen.devicePixelRatio();
    return {geometry.topLeft(), QSizeF(geometry.size() * ratio).toSize()};
}

QRectF fromPixels(const QRect &area, const QScreen &screen)
{
    const QPointF origin = screen.geometry().topLeft();
    const qreal ratio = screen.devicePixelRatio();
    return {origin + (QPointF(area.topLeft()) - origin) / ratio, QSizeF(area.size()) / ratio};
}

QList<quint32> numbersOf(const QByteArray &bytes)
{
    QList<quint32> numbers(bytes.size() / qsizetype{sizeof(quint32)});
    if (!numbers.isEmpty())
        std::memcpy(numbers.data(), bytes.constData(), static_cast<size_t>(numbers.size()) * sizeof(quint32));
    return numbers;
}

QList<quint32> numbersOf(const XReply<xcb_get_property_reply_t> &reply)
{
    if (!reply)
        return {};
    return numbersOf(QByteArray(static_cast<const char *>(xcb_get_property_value(reply.get())),
                                xcb_get_property_value_length(reply.get())));
}

QList<xcb_window_t> childrenOf(xcb_connection_t *xcb, const QList<xcb_window_t> &parents)
{
    QList<xcb_query_tree_cookie_t> questions;
    for (const xcb_window_t parent : parents)
        questions.append(xcb_query_tree(xcb, parent));
    QList<xcb_window_t> children;
    for (const xcb_query_tree_cookie_t question : std::as_const(questions)) {
        const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(xcb, question, nullptr));
        if (!tree)
            continue;
        const std::span found(xcb_query_tree_children(tree.get()),
                              static_cast<size_t>(xcb_query_tree_children_length(tree.get())));
        children.append(QList<xcb_window_t>(found.begin(), found.end()));
    }
    return children;
}

} // namespace

X11Screens::X11Screens(X11Connection &connection)
    : m_connection(connection)
{
    m_settling.setSingleShot(true);
    m_settling.setInterval(0);
    connect(&m_settling, &QTimer::timeout, this, &X11Screens::settle);
    const QList<QScreen *> all = QGuiApplication::screens();
    for (QScreen *screen : all)
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        watch(screen);
        m_settling.start();
    });
    const auto settleSoon = [this] { m_settling.start(); };
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, settleSoon);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, settleSoon);
    connect(&connection, &X11Connection::eventReceived, this, &X11Screens::onEvent);
    readSpace();
    m_known = screens();
}

QList<Screen> X11Screens::screens() const
{
    // Qt lists the primary screen first.
    QList<Screen> screens;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all)
        screens.append(
            {.frame = flipped(screen->geometry()), .visibleFrame = flipped(visibleFrame(*screen))});
    return screens;
}

std::optional<QPointF> X11Screens::mouseLocation() const
{
    const QPoint position = QCursor::pos();
    // The pointer is on a pixel, not on the line below it.
    const QRectF pixel = flipped(QRectF(position, QSizeF(1, 1)));
    return pixel.center();
}

QRectF X11Screens::flipped(const QRectF &rectangle) const
{
    const QScreen *main = QGuiApplication::primaryScreen();
    if (!main)
        return rectangle;
    const QRectF frame = main->geometry();
    const qreal bottom = frame.y() + frame.height();
    return {rectangle.x() - frame.x(), bottom - rectangle.y() - rectangle.height(), rectangle.width(),
            rectangle.height()};
}

void X11Screens::watch(QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, this, [this] { m_settling.start(); });
}

void X11Screens::onEvent(const xcb_generic_event_t *event)
{
    if ((event->response_type & 0x7f) != XCB_PROPERTY_NOTIFY)
        return;
    const auto *notify = reinterpret_cast<const xcb_property_notify_event_t *>(event);
    const bool isOfRoot = notify->window == m_connection.root();
    const auto isOneOf = [&](std::initializer_list<const char *> names) {
        return std::ranges::any_of(names,
                                   [&](const char *name) { return notify->atom == m_connection.atom(name); });
    };
    if (isOfRoot ? isOneOf({"_NET_CLIENT_LIST", "_NET_WORKAREA", "_NET_CURRENT_DESKTOP", "_GTK_WORKAREAS_D0"})
                 : isOneOf({"_NET_WM_STRUT_PARTIAL", "_NET_WM_STRUT"}))
        m_settling.start();
    // No other event reports a dock that is not listed.
    if (isOfRoot && m_workArea.isEmpty() && isOneOf({"_NET_ACTIVE_WINDOW"}))
        m_settling.start();
}

void X11Screens::settle()
{
    readSpace();
    const QList<Screen> now = screens();
    if (m_known == now)
        return;
    m_known = now;
    Q_EMIT changed();
}

void X11Screens::readSpace()
{
    const XReply<xcb_get_geometry_reply_t> geometry(xcb_get_geometry_reply(
        m_connection.xcb(), xcb_get_geometry(m_connection.xcb(), m_connection.root()), nullptr));
    if (geometry)
        m_desktop = QSize(geometry->width, geometry->height);
    const quint32 desktop =
        m_connection.property32(m_connection.root(), m_connection.atom("_NET_CURRENT_DESKTOP")).value_or(0);
    m_monitorAreas = areas("_GTK_WORKAREAS_D" + QByteArray::number(desktop));
    m_workArea = areas("_NET_WORKAREA").value(desktop);
    readStruts();
}

void X11Screens::readStruts()
{
    xcb_connection_t *xcb = m_connection.xcb();
    const QList<xcb_window_t> windows = candidates();
    // Send all requests before waiting for the first answer.
    QList<std::array<xcb_get_property_cookie_t, 2>> questions;
    for (const xcb_window_t window : windows) {
        // A dock may take up more or less space at any time.
        const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(xcb, window, XCB_CW_EVENT_MASK, &events);
        questions.append(
            {xcb_get_property(xcb, 0, window, m_connection.atom("_NET_WM_STRUT_PARTIAL"), XCB_ATOM_CARDINAL,
                              0, 12),
             xcb_get_property(xcb, 0, window, m_connection.atom("_NET_WM_STRUT"), XCB_ATOM_CARDINAL, 0, 4)});
    }
    m_struts.clear();
    for (const auto &[partial, whole] : std::as_const(questions)) {
        const QList<quint32> detailed =
            numbersOf(XReply<xcb_get_property_reply_t>(xcb_get_property_reply(xcb, partial, nullptr)));
        const QList<quint32> plain =
            numbersOf(XReply<xcb_get_property_reply_t>(xcb_get_property_reply(xcb, whole, nullptr)));
        if (detailed.size() == 12) {
            Strut strut{};
            std::ranges::copy(detailed, strut.begin());
            m_struts.append(strut);
        } else if (plain.size() == 4) {
            m_struts.append(wholeEdges(plain.at(0), plain.at(1), plain.at(2), plain.at(3)));
        }
    }
}

QList<xcb_window_t> X11Screens::candidates() const
{
    QList<quint32> windows =
        numbersOf(m_connection.property(m_connection.root(), m_connection.atom("_NET_CLIENT_LIST")));
    if (!m_workArea.isEmpty())
        return windows;
    // A window manager that does not report the work area may not list the docks either.
    QList<xcb_window_t> parents{m_connection.root()};
    constexpr int kDepth = 2;
    for (int depth = 0; depth < kDepth; ++depth) {
        const QList<xcb_window_t> children = childrenOf(m_connection.xcb(), parents);
        for (const xcb_window_t child : children) {
            if (!windows.contains(child))
                windows.append(child);
        }
        parents = children;
    }
    return windows;
}

QList<QRect> X11Screens::areas(const QByteArray &property) const
{
    const QList<quint32> numbers =
        numbersOf(m_connection.property(m_connection.root(), m_connection.atom(property.constData())));
    QList<QRect> areas;
    for (qsizetype i = 0; i + 4 <= numbers.size(); i += 4) {
        areas.append(QRect(static_cast<int>(numbers.at(i)), static_cast<int>(numbers.at(i + 1)),
                           static_cast<int>(numbers.at(i + 2)), static_cast<int>(numbers.at(i + 3))));
    }
    return areas;
}

QRectF X11Screens::visibleFrame(const QScreen &screen) const
{
    const QRect pixels = pixelsOf(screen);
    QRect space = spaceOn(pixels, m_desktop, m_struts);
    // Some window managers draw their own panels, which have no windows to inspect.
    for (const QRect &area : m_monitorAreas) {
        if (!(area & space).isEmpty())
            space &= area;
    }
    if (QGuiApplication::screens().size() == 1 && !(m_workArea & space).isEmpty())
        space &= m_workArea;
    return fromPixels(space, screen);
}

} // namespace vesk
