// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/virtualdesktop.h"

#include <QElapsedTimer>

#include <optional>

namespace vesk {

/// Tells, by asking the X server every 0.2 ms, how long it takes until something is on the screen. The
/// desktop's background has to be black.
class Stopwatch final
{
public:
    explicit Stopwatch(VirtualDesktop &desktop);

    /// Presses the keys, the last one as the clock starts, and keeps them down.
    void press(std::initializer_list<xcb_keysym_t> keys);
    /// Lets the keys go again, in the opposite order.
    void release();

    /// Milliseconds since the press until the window of this title can be seen; none after 5 s.
    [[nodiscard]] std::optional<double> untilViewable(const QString &title);
    /// Milliseconds since the press until the point is no longer black and the window has the keyboard;
    /// none after 5 s.
    [[nodiscard]] std::optional<double> untilPainted(QPoint point, xcb_window_t window);
    /// Milliseconds from the last key until this area of the screen looks different than before.
    [[nodiscard]] std::optional<double> untilChanged(const QRect &area, const QByteArray &before);

    /// What an area of the screen shows now.
    [[nodiscard]] QByteArray pixels(const QRect &area) const;
    /// What an area of the screen shows once it has stood still for a moment.
    [[nodiscard]] QByteArray settledPixels(const QRect &area) const;

    /// Milliseconds from a key press until a window that the bench itself puts into the upper left corner is
    /// seen: what the server and the asking alone take. None if it stayed.
    [[nodiscard]] std::optional<double> floor();

private:
    template <typename Condition>
    [[nodiscard]] std::optional<double> until(const Condition &condition);
    [[nodiscard]] bool hasKeyboard(xcb_window_t window) const;
    [[nodiscard]] bool isBlack(QPoint point) const;

    VirtualDesktop &m_desktop;
    QElapsedTimer m_timer;
    QList<xcb_keysym_t> m_keys;
};

} // namespace vesk
