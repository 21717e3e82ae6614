// SPDX-License-Identifier: MIT
#include "platform/freedesktop/statusicon.h"

#include "platform/freedesktop/statusitem.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

// The names that the protocol is in use under.
const QString kWatcher = u"org.kde.StatusNotifierWatcher"_s;
const QString kWatcherPath = u"/StatusNotifierWatcher"_s;
// Where the desktop looks for an item of which it knows only the name on the bus.
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
    // A desktop without a place for icons is not to be given one.
    call.setAutoStartService(false);
    // An error means that there is nobody to show the icon; whoever comes is noticed.
    m_bus.asyncCall(call);
}

} // namespace vesk
