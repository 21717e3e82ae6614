// SPDX-License-Identifier: MIT
#include "platform/freedesktop/statusicon.h"

#include "platform/freedesktop/statusitem.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

// The protocol is in use under these names.
const QString kWatcher = u"org.kde.StatusNotifierWatcher"_s;
const QString kWatcherPath = u"/StatusNotifierWatcher"_s;
// Where the desktop looks for an item of which it only knows the bus name.
const QString kItemPath = u"/StatusNotifierItem"_s;
const QString kMenuPath = u"/StatusNotifierItem/Menu"_s;

} // namespace

StatusIcon::StatusIcon(QDBusConnection bus, const Content &content)
    : m_bus(std::move(bus))
    , m_watcher(kWatcher, m_bus, QDBusServiceWatcher::WatchForOwnerChange)
{
    // NOLINTBEGIN(cppcoreguidelines-owning-memory): the objects own their adaptors.
    new StatusItem(content.activated, QDBusObjectPath(kMenuPath), this);
    new DBusMenu(content.menu, &m_menu);
    // NOLINTEND(cppcoreguidelines-owning-memory)
    m_bus.registerObject(kItemPath, this);
    m_bus.registerObject(kMenuPath, &m_menu);
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &, const QString &owner) {
                if (!owner.isEmpty())
                    registerItem();
            });
    registerItem();
}

void StatusIcon::registerItem()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(kWatcher, kWatcherPath, kWatcher, u"RegisterStatusNotifierItem"_s);
    call.setArguments({m_bus.baseService()});
    // Do not start a tray on a desktop that has none.
    call.setAutoStartService(false);
    // An error means that nobody shows icons; if that changes, we are notified.
    m_bus.asyncCall(call);
}

} // namespace vesk
