// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/virtualdesktop.h"

#include <QElapsedTimer>

#include <optional>

namespace vesk {

/// Measures how long it takes until something is on the screen by polling the X server every 0.2 ms. The
/// desktop's background must be black.
class Stopwatch final
{
public:
    explicit Stopwatch(VirtualDesktop &desktop);

    /// Presses the keys and holds them; the clock starts with the last one.
    void press(std::initializer_list<xcb_keysym_t> keys);
    /// Releases the keys in reverse order.
    void release();

    /// Milliseconds from the press until the window with this title is viewable; nullopt after 5 s.
    [[nodiscard]] std::optional<double> untilViewable(const QString &title);
    /// Milliseconds from the press until the point is no longer black and the window has the focus; nullopt
    /// after 5 s.
    [[nodiscard]] std::optional<double> untilPainted(QPoint point, xcb_window_t window);
    /// Milliseconds from the last key until this area of the screen has changed.
    [[nodiscard]] std::optional<double> untilChanged(const QRect &area, const QByteArray &before);

    /// The current contents of an area of the screen.
    [[nodiscard]] QByteArray pixels(const QRect &area) const;
    /// The contents of an area of the screen once it has not changed for a moment.
    [[nodiscard]] QByteArray settledPixels(const QRect &area) const;

    /// Milliseconds from a key press until a window that the benchmark itself puts into the top left corner
    /// is seen: the share of the server and of the polling. nullopt if that window could not be removed.
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
