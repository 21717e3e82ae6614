// SPDX-License-Identifier: MIT
#include "virtualdesktop/displayconnection.h"

#include <QElapsedTimer>

#include <cstring>
#include <poll.h>

namespace vesk {

namespace {

constexpr int kPollMilliseconds = 5;

void awaitInput(xcb_connection_t *connection)
{
    pollfd descriptor = {xcb_get_file_descriptor(connection), POLLIN, 0};
    poll(&descriptor, 1, kPollMilliseconds);
}

} // namespace

std::unique_ptr<DisplayConnection> DisplayConnection::open(const QString &name)
{
    xcb_connection_t *connection = xcb_connect(name.toLatin1().constData(), nullptr);
    if (xcb_connection_has_error(connection)) {
        xcb_disconnect(connection);
        return nullptr;
    }
    return std::unique_ptr<DisplayConnection>(new DisplayConnection(connection));
}

DisplayConnection::DisplayConnection(xcb_connection_t *connection)
    : m_connection(connection)
    , m_screen(xcb_setup_roots_iterator(xcb_get_setup(connection)).data)
    , m_window(xcb_generate_id(connection))
{
    xcb_create_window(connection, 0, m_window, m_screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    const quint32 mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection, m_screen->root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection);
}

DisplayConnection::~DisplayConnection()
{
    xcb_disconnect(m_connection);
}

bool DisplayConnection::waitUntil(std::chrono::milliseconds bound, const std::function<bool()> &condition)
{
    QElapsedTimer timer;
    timer.start();
    for (;;) {
        // Drop events before evaluating the condition, so that none after it is missed.
        while (Reply<xcb_generic_event_t>(xcb_poll_for_event(m_connection))) {
        }
        if (condition())
            return true;
        if (timer.hasExpired(bound.count()) || xcb_connection_has_error(m_connection))
            return false;
        awaitInput(m_connection);
    }
}

std::optional<QString> DisplayConnection::readSelection(const char *selection,
                                                        std::chrono::milliseconds bound)
{
    const std::optional<QByteArray> text = readForm(selection, "UTF8_STRING", bound);
    return text ? std::optional(QString::fromUtf8(*text)) : std::nullopt;
}

std::optional<QByteArray> DisplayConnection::readForm(const char *selection, const char *form,
                                                      std::chrono::milliseconds bound)
{
    const xcb_atom_t property = atom("VESK_TEST_SELECTION");
    xcb_convert_selection(m_connection, m_window, atom(selection), atom(form), property, XCB_CURRENT_TIME);
    xcb_flush(m_connection);
    QElapsedTimer timer;
    timer.start();
    while (!timer.hasExpired(bound.count()) && !xcb_connection_has_error(m_connection)) {
        while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
            if ((event->response_type & 0x7f) != XCB_SELECTION_NOTIFY)
                continue;
            xcb_selection_notify_event_t notify;
            std::memcpy(&notify, event.get(), sizeof notify);
            if (notify.property == XCB_NONE)
                return std::nullopt;
            return takeSelectionProperty(property);
        }
        awaitInput(m_connection);
    }
    return std::nullopt;
}

QByteArray DisplayConnection::takeSelectionProperty(xcb_atom_t property)
{
    constexpr quint32 kWords = 1 << 20;
    const auto cookie = xcb_get_property(m_connection, 1, m_window, property, XCB_ATOM_ANY, 0, kWords);
    const Reply<xcb_get_property_reply_t> reply{xcb_get_property_reply(m_connection, cookie, nullptr)};
    if (!reply)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

QImage DisplayConnection::screenshot() const
{
    const auto cookie = xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root, 0, 0,
                                      m_screen->width_in_pixels, m_screen->height_in_pixels, ~0U);
    const Reply<xcb_get_image_reply_t> reply{xcb_get_image_reply(m_connection, cookie, nullptr)};
    if (!reply)
        return {};
    const QImage view(xcb_get_image_data(reply.get()), size().width(), size().height(), QImage::Format_RGB32);
    return view.copy();
}

xcb_atom_t DisplayConnection::atom(const char *name) const
{
    const auto cookie = xcb_intern_atom(m_connection, 0, quint16(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply{xcb_intern_atom_reply(m_connection, cookie, nullptr)};
    return reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
}

} // namespace vesk
