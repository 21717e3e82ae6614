// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPointF>
#include <QRectF>

#include <algorithm>
#include <optional>

namespace vesk {

/// One screen, in points. The origin is the bottom left corner of the main screen and the y axis points
/// upwards: a rectangle's `y()` is its bottom edge and `y() + height()` its top edge.
struct Screen
{
    QRectF frame;
    /// The part of the frame that panels and docks leave free.
    QRectF visibleFrame;

    friend bool operator==(const Screen &, const Screen &) = default;
};

/// The user's screens and pointer.
class Screens : public QObject
{
    Q_OBJECT

public:
    /// Returns all screens, the main screen first; empty if there is none.
    [[nodiscard]] virtual QList<Screen> screens() const = 0;

    /// Returns the position of the pointer in `Screen` coordinates; nullopt if the platform does not say.
    [[nodiscard]] virtual std::optional<QPointF> mouseLocation() const = 0;

    /// Converts a rectangle from `Screen` coordinates to Qt's window coordinates (y downwards), or back.
    [[nodiscard]] virtual QRectF flipped(const QRectF &rectangle) const = 0;

    /// Returns the first screen that contains the pointer, otherwise the main screen; nullopt if there is no
    /// screen.
    [[nodiscard]] std::optional<Screen> screenUnderMouse() const
    {
        const QList<Screen> all = screens();
        if (const std::optional<QPointF> mouse = mouseLocation()) {
            for (const Screen &screen : all) {
                if (screen.frame.contains(*mouse))
                    return screen;
            }
        }
        return all.isEmpty() ? std::nullopt : std::optional(all.first());
    }

    /// Whether a window with this geometry, in Qt's coordinates, lies completely on one screen.
    [[nodiscard]] bool holdsWhole(const QRectF &geometry) const
    {
        const QList<Screen> all = screens();
        const QRectF frame = flipped(geometry);
        return std::ranges::any_of(all, [&](const Screen &screen) { return screen.frame.contains(frame); });
    }

Q_SIGNALS:
    /// Emitted when a screen was added or removed, or its frame or visible frame has changed.
    void changed();
};

} // namespace vesk
