// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/dbusmenu.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

namespace vesk {

/// The menus of a window on a desktop that shows the menus of the active window in a bar of its own
/// (com.canonical.AppMenu.Registrar). Follows that bar as it appears, disappears and restarts; does nothing
/// if there is none. Never waits for the bus.
class MenuBar final : public QObject
{
    Q_OBJECT

public:
    /// `window` is the X server's id of the window.
    MenuBar(QDBusConnection bus, quint32 window, const QList<DBusMenuEntry> &menus);

private:
    void registerWindow();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    const quint32 m_window;
};

} // namespace vesk
