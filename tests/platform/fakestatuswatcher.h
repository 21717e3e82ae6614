// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

#include <utility>

namespace vesk {

/// A desktop panel's area for icons, on the test's bus.
class FakeStatusWatcher final : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

public:
    explicit FakeStatusWatcher(QDBusConnection bus)
        : m_bus(std::move(bus))
    {
        m_bus.registerObject(QStringLiteral("/StatusNotifierWatcher"), this, QDBusConnection::ExportAllSlots);
        m_bus.registerService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }
    ~FakeStatusWatcher() override
    {
        m_bus.unregisterService(QStringLiteral("org.kde.StatusNotifierWatcher"));
    }
    Q_DISABLE_COPY_MOVE(FakeStatusWatcher)

    /// The bus names of the registered icons.
    [[nodiscard]] const QStringList &items() const { return m_items; }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service)
    {
        // As a real one does: given a path, the service is the caller, and a known item is not announced
        // again.
        const QString item = service.startsWith(u'/') ? message().service() : service;
        if (!m_items.contains(item))
            m_items.append(item);
    }

private:
    QDBusConnection m_bus;
    QStringList m_items;
};

} // namespace vesk
