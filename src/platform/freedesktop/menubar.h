// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/dbusmenu.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace vesk {

/// The menus of a window on a desktop that shows those of the active window in a bar of its own
/// (com.canonical.AppMenu.Registrar). They are there while the desktop has such a bar, whenever that comes,
/// goes or starts anew; where there is none nothing happens. Never waits for the bus.
class MenuBar final : public QObject
{
    Q_OBJECT

public:
    /// `window` is the number that the X server knows the window by.
    MenuBar(QDBusConnection bus, quint32 window, const QList<DBusMenuEntry> &menus);

private:
    void registerWindow();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    const quint32 m_window;
};

} // namespace vesk
