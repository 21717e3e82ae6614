// SPDX-License-Identifier: MIT
#include "platform/x11/x11screens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace vesk {

X11Screens::X11Screens()
{
    const QList<QScreen *> all = QGuiApplication::screens();
    for (QScreen *screen : all)
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen *screen) {
        watch(screen);
        Q_EMIT changed();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &Screens::changed);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &Screens::changed);
}

QList<Screen> X11Screens::screens() const
{
    // Qt keeps the primary screen first.
    QList<Screen> screens;
    const QList<QScreen *> all = QGuiApplication::screens();
    for (const QScreen *screen : all) {
        screens.append(
            {.frame = flipped(screen->geometry()), .visibleFrame = flipped(screen->availableGeometry())});
    }
    return screens;
}

std::optional<QPointF> X11Screens::mouseLocation() const
{
    const QPoint position = QCursor::pos();
    // The pointer is on a pixel, not on the line below it.
    const QRectF pixel = flipped(QRectF(position, QSizeF(1, 1)));
    return pixel.center();
}

QRectF X11Screens::flipped(const QRectF &rectangle) const
{
    const QScreen *main = QGuiApplication::primaryScreen();
    if (!main)
        return rectangle;
    const QRectF frame = main->geometry();
    const qreal bottom = frame.y() + frame.height();
    return {rectangle.x() - frame.x(), bottom - rectangle.y() - rectangle.height(), rectangle.width(),
            rectangle.height()};
}

void X11Screens::watch(QScreen *screen)
{
    connect(screen, &QScreen::geometryChanged, this, &Screens::changed);
    connect(screen, &QScreen::availableGeometryChanged, this, &Screens::changed);
}

} // namespace vesk
