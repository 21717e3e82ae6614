// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRectF>

class QWindow;

namespace vesk {

/// Places and shapes Vesk's own windows, as far as the desktop allows.
class Windows : public QObject
{
    Q_OBJECT

public:
    enum class Kind {
        /// Takes the focus, stays above other windows, is on every workspace, and is not in the task list.
        Panel,
        /// Takes neither the focus nor clicks, is above everything, and is on every workspace.
        Notice,
    };

    /// Sets the kind of a window. Must be called before every show, because window managers forget it when
    /// the window is hidden.
    virtual void prepare(QWindow &window, Kind kind) = 0;

    /// Moves and resizes a window to `frame`, in `Screen` coordinates. Returns false and changes nothing if
    /// the desktop does not let programs place their windows.
    virtual bool setFrame(QWindow &window, const QRectF &frame) = 0;

    /// Cuts a window's corners to this radius, in points, if the desktop does not blend windows. Does nothing
    /// while `isComposited`: then windows draw their own corners.
    virtual void setCornerRadius(QWindow &window, qreal radius) = 0;

    /// Whether the desktop blends windows, so that they can be translucent.
    [[nodiscard]] virtual bool isComposited() const = 0;

Q_SIGNALS:
    void compositedChanged();
};

} // namespace vesk
