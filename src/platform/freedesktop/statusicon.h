// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/dbusmenu.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>

namespace vesk {

/// Vesk's icon in the desktop's panel (the StatusNotifierItem protocol). Follows the panel as it appears,
/// disappears and restarts; does nothing if the desktop does not show such icons. Never waits for the bus.
class StatusIcon final : public QObject
{
    Q_OBJECT

public:
    struct Content
    {
        /// What a click on the icon does.
        std::function<void()> activated;
        QList<DBusMenuEntry> menu;
    };

    StatusIcon(QDBusConnection bus, const Content &content);

private:
    void registerItem();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    /// The object that the menu is exported under.
    QObject m_menu;
};

} // namespace vesk
