// SPDX-License-Identifier: MIT
#pragma once

#include "platform/screens.h"
#include "platform/x11/screenspace.h"

#include <QTimer>

#include <xcb/xcb.h>

class QScreen;

namespace vesk {

class X11Connection;

/// The screens as Qt reads them from the server, less what docks and panels keep for themselves.
class X11Screens final : public Screens
{
    Q_OBJECT

public:
    explicit X11Screens(X11Connection &connection);

    [[nodiscard]] QList<Screen> screens() const override;
    [[nodiscard]] std::optional<QPointF> mouseLocation() const override;
    [[nodiscard]] QRectF flipped(const QRectF &rectangle) const override;

private:
    void watch(QScreen *screen);
    void onEvent(const xcb_generic_event_t *event);
    /// Reads what is kept free, and says so if anything of the screens has changed.
    void settle();
    void readSpace();
    void readStruts();
    /// The windows that may be docks.
    [[nodiscard]] QList<xcb_window_t> candidates() const;
    /// Areas of a property of the root window, each of four numbers.
    [[nodiscard]] QList<QRect> areas(const QByteArray &property) const;
    [[nodiscard]] QRectF visibleFrame(const QScreen &screen) const;

    X11Connection &m_connection;
    /// Windows and screens come in groups, and Qt moves windows off a screen that goes; all is looked at
    /// once they are done.
    QTimer m_settling;
    /// The whole desktop, which may reach beyond the screens; in pixels.
    QSize m_desktop;
    QList<Strut> m_struts;
    /// What the window manager says is free of each of its monitors, or of the whole desktop; in pixels.
    QList<QRect> m_monitorAreas;
    QRect m_workArea;
    QList<Screen> m_known;
};

} // namespace vesk
