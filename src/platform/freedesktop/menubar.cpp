// SPDX-License-Identifier: MIT
#include "platform/freedesktop/menubar.h"

#include <QDBusMessage>
#include <QDBusPendingCall>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const QString kRegistrar = u"com.canonical.AppMenu.Registrar"_s;
const QString kRegistrarPath = u"/com/canonical/AppMenu/Registrar"_s;
const QString kMenuPath = u"/MenuBar"_s;

} // namespace

MenuBar::MenuBar(QDBusConnection bus, quint32 window, const QList<DBusMenuEntry> &menus)
    : m_bus(std::move(bus))
    , m_watcher(kRegistrar, m_bus, QDBusServiceWatcher::WatchForRegistration)
    , m_window(window)
{
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the object owns its adaptor.
    new DBusMenu(menus, this);
    m_bus.registerObject(kMenuPath, this);
    connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &MenuBar::registerWindow);
    registerWindow();
}

void MenuBar::registerWindow()
{
    QDBusMessage call =
        QDBusMessage::createMethodCall(kRegistrar, kRegistrarPath, kRegistrar, u"RegisterWindow"_s);
    call.setArguments({m_window, QVariant::fromValue(QDBusObjectPath(kMenuPath))});
    // Do not start a menu bar on a desktop that has none.
    call.setAutoStartService(false);
    m_bus.asyncCall(call);
}

} // namespace vesk
