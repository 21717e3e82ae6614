// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/dbusmenu.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>

namespace vesk {

/// Vesk's icon among those of the desktop's panel (the StatusNotifierItem protocol). It is there while
/// the desktop has a place for such icons, whenever that comes, goes or starts anew; where there is none
/// nothing happens. Never waits for the bus.
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
    /// What the menu is called under.
    QObject m_menu;
};

} // namespace vesk
