// SPDX-License-Identifier: MIT
#include "stopwatch.h"

#include <QThread>

#include <ranges>
#include <utility>

namespace vesk {

Stopwatch::Stopwatch(VirtualDesktop &desktop)
    : m_desktop(desktop)
{
}

template <typename Condition>
std::optional<double> Stopwatch::until(const Condition &condition)
{
    constexpr qint64 kBound = 5000;
    // Polling without a pause would keep two processors busy, which the measured programs need.
    constexpr unsigned long kPause = 200;
    while (!condition()) {
        if (m_timer.hasExpired(kBound))
            return std::nullopt;
        QThread::usleep(kPause);
    }
    return static_cast<double>(m_timer.nsecsElapsed()) / 1e6;
}

void Stopwatch::press(std::initializer_list<xcb_keysym_t> keys)
{
    m_keys = keys;
    for (const xcb_keysym_t key : std::as_const(m_keys)) {
        m_timer.start();
        m_desktop.keyboard().press(key);
    }
}

void Stopwatch::release()
{
    for (const xcb_keysym_t key : m_keys | std::views::reverse)
        m_desktop.keyboard().release(key);
}

std::optional<double> Stopwatch::untilViewable(const QString &title)
{
    return until([&] { return m_desktop.windows().findViewable(title).has_value(); });
}

std::optional<double> Stopwatch::untilPainted(QPoint point, xcb_window_t window)
{
    return until([&] { return !isBlack(point) && hasKeyboard(window); });
}

std::optional<double> Stopwatch::untilChanged(const QRect &area, const QByteArray &before)
{
    return until([&] { return pixels(area) != before; });
}

QByteArray Stopwatch::settledPixels(const QRect &area) const
{
    constexpr qint64 kStill = 120;
    constexpr qint64 kBound = 5000;
    QByteArray now = pixels(area);
    QElapsedTimer bound;
    QElapsedTimer unchanged;
    bound.start();
    unchanged.start();
    while (!unchanged.hasExpired(kStill) && !bound.hasExpired(kBound)) {
        QThread::msleep(5);
        const QByteArray before = std::exchange(now, pixels(area));
        if (before != now)
            unchanged.start();
    }
    return now;
}

QByteArray Stopwatch::pixels(const QRect &area) const
{
    xcb_connection_t *x = m_desktop.display().xcb();
    const auto cookie =
        xcb_get_image(x, XCB_IMAGE_FORMAT_Z_PIXMAP, m_desktop.display().root(),
                      static_cast<int16_t>(area.x()), static_cast<int16_t>(area.y()),
                      static_cast<uint16_t>(area.width()), static_cast<uint16_t>(area.height()), ~0U);
    const Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(x, cookie, nullptr));
    if (!reply)
        return {};
    return {reinterpret_cast<const char *>(xcb_get_image_data(reply.get())),
            xcb_get_image_data_length(reply.get())};
}

std::optional<double> Stopwatch::floor()
{
    xcb_connection_t *x = m_desktop.display().xcb();
    const xcb_window_t window = xcb_generate_id(x);
    const uint32_t values[] = {0xFFFFFF, 1};
    xcb_create_window(x, XCB_COPY_FROM_PARENT, window, m_desktop.display().root(), 0, 0, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, values);
    // A key that has no effect anywhere.
    press({XK_F9});
    xcb_map_window(x, window);
    const std::optional<double> time = until([&] { return !isBlack({50, 50}); });
    release();
    xcb_destroy_window(x, window);
    const bool isGone =
        m_desktop.display().waitUntil(std::chrono::seconds{1}, [&] { return isBlack({50, 50}); });
    return isGone ? time : std::nullopt;
}

bool Stopwatch::hasKeyboard(xcb_window_t window) const
{
    xcb_connection_t *x = m_desktop.display().xcb();
    const Reply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(x, xcb_get_input_focus(x), nullptr));
    return focus && focus->focus == window;
}

bool Stopwatch::isBlack(QPoint point) const
{
    xcb_connection_t *x = m_desktop.display().xcb();
    const auto cookie =
        xcb_get_image(x, XCB_IMAGE_FORMAT_Z_PIXMAP, m_desktop.display().root(),
                      static_cast<int16_t>(point.x()), static_cast<int16_t>(point.y()), 1, 1, ~0U);
    const Reply<xcb_get_image_reply_t> reply(xcb_get_image_reply(x, cookie, nullptr));
    if (!reply)
        return true;
    const uint8_t *pixel = xcb_get_image_data(reply.get());
    return pixel[0] == 0 && pixel[1] == 0 && pixel[2] == 0;
}

} // namespace vesk
