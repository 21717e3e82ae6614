// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

#include <utility>

namespace vesk {

/// The place for icons of a desktop's panel, on a bus of the test's own.
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

    /// The names by which the registered icons are reached.
    [[nodiscard]] const QStringList &items() const { return m_items; }

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString &service)
    {
        // What a real one does: with a path, the caller is the service, and one that it has is no news.
        const QString item = service.startsWith(u'/') ? message().service() : service;
        if (!m_items.contains(item))
            m_items.append(item);
    }

private:
    QDBusConnection m_bus;
    QStringList m_items;
};

} // namespace vesk
