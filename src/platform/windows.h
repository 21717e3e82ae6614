// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRectF>

class QWindow;

namespace vesk {

/// What the desktop lets Vesk decide about its own windows.
class Windows : public QObject
{
    Q_OBJECT

public:
    enum class Kind {
        /// Takes the keyboard, stays above other windows, is on every desktop, is in no task list.
        Panel,
        /// Never takes the keyboard nor a click, is above everything, is on every desktop.
        Notice,
    };

    /// Gives a window its kind. Has to be called before every show: window managers forget when a
    /// window is hidden.
    virtual void prepare(QWindow &window, Kind kind) = 0;

    /// Puts a window where `frame` says, in the coordinates of `Screen`. False, with the window left
    /// where it is, if the desktop does not let programs place their windows.
    virtual bool setFrame(QWindow &window, const QRectF &frame) = 0;

    /// Cuts a window's corners to this radius, in points, where nothing blends windows. Does nothing
    /// while `isComposited`, when a window draws its own corners.
    virtual void setCornerRadius(QWindow &window, qreal radius) = 0;

    /// Whether the desktop blends windows, so that a window can be translucent.
    [[nodiscard]] virtual bool isComposited() const = 0;

Q_SIGNALS:
    void compositedChanged();
};

} // namespace vesk
