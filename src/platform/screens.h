// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QObject>
#include <QPointF>
#include <QRectF>

#include <algorithm>
#include <optional>

namespace vesk {

/// One screen, in points. The y axis grows upwards, from the bottom left corner of the main screen;
/// a rectangle's `y()` is its bottom edge and `y() + height()` its top edge.
struct Screen
{
    QRectF frame;
    /// The frame without panels and docks.
    QRectF visibleFrame;

    friend bool operator==(const Screen &, const Screen &) = default;
};

/// The user's screens and pointer.
class Screens : public QObject
{
    Q_OBJECT

public:
    /// All screens, the main screen first; empty if there is none.
    [[nodiscard]] virtual QList<Screen> screens() const = 0;

    /// Where the pointer is, in the coordinates of `Screen`; none if the platform does not tell.
    [[nodiscard]] virtual std::optional<QPointF> mouseLocation() const = 0;

    /// Turns a rectangle of `Screen` coordinates into Qt's window coordinates (y downwards), or back.
    [[nodiscard]] virtual QRectF flipped(const QRectF &rectangle) const = 0;

    /// The first screen that holds the pointer; else the main screen; none if there is no screen.
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

    /// Whether a window of this geometry, in Qt's coordinates, is all on one screen.
    [[nodiscard]] bool holdsWhole(const QRectF &geometry) const
    {
        const QList<Screen> all = screens();
        const QRectF frame = flipped(geometry);
        return std::ranges::any_of(all, [&](const Screen &screen) { return screen.frame.contains(frame); });
    }

Q_SIGNALS:
    /// A screen has come, gone, or changed its size, place or visible frame.
    void changed();
};

} // namespace vesk
