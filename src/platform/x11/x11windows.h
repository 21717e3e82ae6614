// SPDX-License-Identifier: MIT
#pragma once

#include "platform/windows.h"

#include <QPointer>
#include <QTimer>
#include <QWindow>

#include <xcb/xcb.h>

namespace vesk {

class Screens;
class X11Connection;

/// Vesk's windows under an X11 window manager.
class X11Windows final : public Windows
{
    Q_OBJECT

public:
    X11Windows(X11Connection &connection, const Screens &screens);

    void prepare(QWindow &window, Kind kind) override;
    bool setFrame(QWindow &window, const QRectF &frame) override;
    void setCornerRadius(QWindow &window, qreal radius) override;
    [[nodiscard]] bool isComposited() const override { return m_isComposited; }

private:
    /// Where a window was put, until its window manager has had its say.
    struct Placing
    {
        QPointer<QWindow> window;
        QRect geometry;
        int looks = 0;
        /// How many of the looks were at the window on the screen.
        int looksAtShown = 0;
    };

    /// Puts the windows that were shown elsewhere than where they were put there once more.
    void lookAgain();
    void onEvent(const xcb_generic_event_t *event);
    [[nodiscard]] bool hasCompositor() const;

    X11Connection &m_connection;
    const Screens &m_screens;
    QList<Placing> m_placings;
    QTimer m_look;
    bool m_isComposited = false;
};

} // namespace vesk
