// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QMap>
#include <QObject>

#include <utility>

namespace vesk {

/// A desktop's bar that shows the menus of the active window, on the test's bus.
class FakeMenuRegistrar final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.AppMenu.Registrar")

public:
    explicit FakeMenuRegistrar(QDBusConnection bus)
        : m_bus(std::move(bus))
    {
        m_bus.registerObject(QStringLiteral("/com/canonical/AppMenu/Registrar"), this,
                             QDBusConnection::ExportAllSlots);
        m_bus.registerService(QStringLiteral("com.canonical.AppMenu.Registrar"));
    }
    ~FakeMenuRegistrar() override
    {
        m_bus.unregisterService(QStringLiteral("com.canonical.AppMenu.Registrar"));
    }
    Q_DISABLE_COPY_MOVE(FakeMenuRegistrar)

    /// The registered windows, each with its bus name and the path of its menus.
    [[nodiscard]] const QMap<quint32, std::pair<QString, QString>> &windows() const { return m_windows; }

public Q_SLOTS:
    void RegisterWindow(uint window, const QDBusObjectPath &path)
    {
        m_windows.insert(window, {message().service(), path.path()});
    }

private:
    QDBusConnection m_bus;
    QMap<quint32, std::pair<QString, QString>> m_windows;
};

} // namespace vesk
