// SPDX-License-Identifier: MIT
#include "virtualdesktop/windows.h"

#include <QStringList>

#include <cstring>
#include <xcb/shape.h>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

QString textOf(const xcb_get_property_reply_t *reply)
{
    if (!reply)
        return {};
    return QString::fromUtf8(static_cast<const char *>(xcb_get_property_value(reply)),
                             xcb_get_property_value_length(reply));
}

quint32 numberOf(const xcb_get_property_reply_t *reply)
{
    quint32 number = 0;
    if (reply && xcb_get_property_value_length(reply) >= int(sizeof number))
        std::memcpy(&number, xcb_get_property_value(reply), sizeof number);
    return number;
}

} // namespace

Windows::Windows(DisplayConnection &display)
    : m_display(display)
    , m_titleAtom(display.atom("_NET_WM_NAME"))
    , m_pidAtom(display.atom("_NET_WM_PID"))
{
}

QList<xcb_window_t> Windows::topWindows() const
{
    xcb_connection_t *xcb = m_display.xcb();
    QList<xcb_window_t> windows = {m_display.root()};
    // The window manager puts an application's window into a frame, and icewm puts that into another one.
    constexpr int kDepth = 3;
    qsizetype level = 0;
    for (int depth = 0; depth < kDepth; ++depth) {
        const QList<xcb_window_t> parents = windows.mid(level);
        level = windows.size();
        QList<xcb_query_tree_cookie_t> cookies;
        for (const xcb_window_t parent : parents)
            cookies.append(xcb_query_tree(xcb, parent));
        for (const xcb_query_tree_cookie_t cookie : std::as_const(cookies)) {
            const Reply<xcb_query_tree_reply_t> tree{xcb_query_tree_reply(xcb, cookie, nullptr)};
            if (!tree)
                continue;
            const xcb_window_t *children = xcb_query_tree_children(tree.get());
            windows.append(QList(children, children + xcb_query_tree_children_length(tree.get())));
        }
    }
    windows.removeFirst();
    return windows;
}

QList<Window> Windows::all() const
{
    struct Questions
    {
        xcb_window_t id;
        xcb_get_property_cookie_t title, oldTitle, pid;
        xcb_get_window_attributes_cookie_t attributes;
        xcb_get_geometry_cookie_t geometry;
        xcb_translate_coordinates_cookie_t place;
    };

    xcb_connection_t *xcb = m_display.xcb();
    QList<Questions> questions;
    for (const xcb_window_t id : topWindows()) {
        questions.append({id, xcb_get_property(xcb, 0, id, m_titleAtom, XCB_ATOM_ANY, 0, 1024),
                          xcb_get_property(xcb, 0, id, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, 1024),
                          xcb_get_property(xcb, 0, id, m_pidAtom, XCB_ATOM_CARDINAL, 0, 1),
                          xcb_get_window_attributes(xcb, id), xcb_get_geometry(xcb, id),
                          xcb_translate_coordinates(xcb, id, m_display.root(), 0, 0)});
    }

    QList<Window> windows;
    for (const Questions &question : std::as_const(questions)) {
        const Reply<xcb_get_property_reply_t> title{xcb_get_property_reply(xcb, question.title, nullptr)};
        const Reply<xcb_get_property_reply_t> oldTitle{
            xcb_get_property_reply(xcb, question.oldTitle, nullptr)};
        const Reply<xcb_get_property_reply_t> pid{xcb_get_property_reply(xcb, question.pid, nullptr)};
        const Reply<xcb_get_window_attributes_reply_t> attributes{
            xcb_get_window_attributes_reply(xcb, question.attributes, nullptr)};
        const Reply<xcb_get_geometry_reply_t> size{xcb_get_geometry_reply(xcb, question.geometry, nullptr)};
        const Reply<xcb_translate_coordinates_reply_t> place{
            xcb_translate_coordinates_reply(xcb, question.place, nullptr)};
        // A window may disappear between two requests; then act as if it had not been seen.
        if (!attributes || !size || !place)
            continue;
        // Xterm only sets its title the old way.
        const QString text = textOf(title.get());
        const Window window = {question.id, text.isEmpty() ? textOf(oldTitle.get()) : text,
                               numberOf(pid.get()),
                               QRect(place->dst_x, place->dst_y, size->width, size->height),
                               attributes->map_state == XCB_MAP_STATE_VIEWABLE};
        if (!window.title.isEmpty() || window.pid != 0)
            windows.append(window);
    }
    return windows;
}

std::optional<Window> Windows::findViewable(const QString &title) const
{
    return findViewableIf([&](const Window &window) { return window.title == title; });
}

std::optional<Window> Windows::findViewableOf(qint64 pid, const QString &part) const
{
    return findViewableIf(
        [&](const Window &window) { return window.pid == pid && window.title.contains(part); });
}

std::optional<Window> Windows::findViewableIf(const std::function<bool(const Window &)> &isIt) const
{
    for (const Window &window : all()) {
        if (window.isViewable && isIt(window))
            return window;
    }
    return std::nullopt;
}

std::optional<Window> Windows::waitViewable(const QString &title, std::chrono::milliseconds bound)
{
    std::optional<Window> window;
    const bool isViewable = m_display.waitUntil(bound, [&] {
        window = findViewable(title);
        return window.has_value();
    });
    return isViewable ? window : std::nullopt;
}

std::optional<Window> Windows::waitViewableOf(qint64 pid, const QString &part,
                                              std::chrono::milliseconds bound)
{
    std::optional<Window> window;
    const bool isViewable = m_display.waitUntil(bound, [&] {
        window = findViewableOf(pid, part);
        return window.has_value();
    });
    return isViewable ? window : std::nullopt;
}

std::optional<Window> Windows::waitFocused(const QString &title, std::chrono::milliseconds bound)
{
    const std::optional<Window> window = waitViewable(title, bound);
    return window && waitFocused(*window, bound) ? window : std::nullopt;
}

bool Windows::waitGone(const QString &title, std::chrono::milliseconds bound)
{
    return m_display.waitUntil(bound, [&] { return !findViewable(title); });
}

bool Windows::waitFocused(const Window &window, std::chrono::milliseconds bound)
{
    return m_display.waitUntil(bound, [&] { return isFocusInside(window.id); });
}

bool Windows::waitActive(const Window &window, std::chrono::milliseconds bound)
{
    return m_display.waitUntil(bound, [&] { return activeWindow() == window.id; });
}

void Windows::activate(const Window &window)
{
    constexpr quint32 kFromPager = 2;
    sendToRoot("_NET_ACTIVE_WINDOW", window.id, kFromPager);
}

bool Windows::goToWorkspace(quint32 index, std::chrono::milliseconds bound)
{
    sendToRoot("_NET_CURRENT_DESKTOP", m_display.root(), index);
    return m_display.waitUntil(bound, [&] { return rootNumber("_NET_CURRENT_DESKTOP") == index; });
}

QRect Windows::workArea() const
{
    QRect area(QPoint(), m_display.size());
    const QList<quint32> said = numbers(m_display.root(), "_NET_WORKAREA");
    if (said.size() >= 4)
        area &= QRect(int(said.at(0)), int(said.at(1)), int(said.at(2)), int(said.at(3)));
    for (const xcb_window_t window : topWindows()) {
        // Left, right, top, bottom.
        const QList<quint32> strut = numbers(window, "_NET_WM_STRUT_PARTIAL");
        if (strut.size() != 12)
            continue;
        const QRect whole(QPoint(), m_display.size());
        area &= whole.adjusted(int(strut.at(0)), int(strut.at(2)), -int(strut.at(1)), -int(strut.at(3)));
    }
    return area;
}

void Windows::sendToRoot(const char *type, xcb_window_t window, quint32 value)
{
    xcb_client_message_event_t message = {};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = m_display.atom(type);
    message.data.data32[0] = value;
    xcb_send_event(m_display.xcb(), 0, m_display.root(),
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(m_display.xcb());
}

QList<quint32> Windows::numbers(xcb_window_t window, const char *property) const
{
    xcb_connection_t *xcb = m_display.xcb();
    const auto cookie = xcb_get_property(xcb, 0, window, m_display.atom(property), XCB_ATOM_ANY, 0, 1024);
    const Reply<xcb_get_property_reply_t> reply{xcb_get_property_reply(xcb, cookie, nullptr)};
    if (!reply)
        return {};
    const auto *values = static_cast<const quint32 *>(xcb_get_property_value(reply.get()));
    return {values, values + xcb_get_property_value_length(reply.get()) / int(sizeof(quint32))};
}

QList<xcb_window_t> Windows::stack() const
{
    return numbers(m_display.root(), "_NET_CLIENT_LIST_STACKING");
}

bool Windows::hasState(const Window &window, const char *state) const
{
    return numbers(window.id, "_NET_WM_STATE").contains(m_display.atom(state));
}

bool Windows::isCut(const Window &window) const
{
    const auto cookie = xcb_shape_query_extents(m_display.xcb(), window.id);
    const Reply<xcb_shape_query_extents_reply_t> reply{
        xcb_shape_query_extents_reply(m_display.xcb(), cookie, nullptr)};
    return reply && reply->bounding_shaped;
}

quint32 Windows::rootNumber(const char *property) const
{
    return numbers(m_display.root(), property).value(0);
}

QString Windows::describe() const
{
    QStringList titles;
    for (const Window &window : all()) {
        if (window.isViewable)
            titles.append(u"“%1” (process %2)"_s.arg(window.title).arg(window.pid));
    }
    return titles.isEmpty() ? u"no window"_s : titles.join(u", "_s);
}

bool Windows::isFocusInside(xcb_window_t window) const
{
    xcb_connection_t *xcb = m_display.xcb();
    const Reply<xcb_get_input_focus_reply_t> focus{
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr)};
    // GTK focuses a window of its own inside the one that the window manager knows.
    xcb_window_t candidate = focus ? focus->focus : xcb_window_t(XCB_WINDOW_NONE);
    while (candidate != window && candidate > XCB_INPUT_FOCUS_POINTER_ROOT) {
        const Reply<xcb_query_tree_reply_t> tree{
            xcb_query_tree_reply(xcb, xcb_query_tree(xcb, candidate), nullptr)};
        candidate = tree ? tree->parent : xcb_window_t(XCB_WINDOW_NONE);
    }
    return candidate == window;
}

xcb_window_t Windows::activeWindow() const
{
    return rootNumber("_NET_ACTIVE_WINDOW");
}

} // namespace vesk
