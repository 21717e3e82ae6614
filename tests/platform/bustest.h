// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/busdaemon.h"

#include <QDBusConnection>
#include <QTest>

namespace vesk {

/// A test on a separate bus, with one connection for Vesk and one for its counterpart.
class BusTest : public QObject
{
    Q_OBJECT

protected:
    [[nodiscard]] static QDBusConnection vesk() { return QDBusConnection(QStringLiteral("vesk")); }
    [[nodiscard]] static QDBusConnection other() { return QDBusConnection(QStringLiteral("other")); }

protected Q_SLOTS:
    void initTestCase()
    {
        m_bus = BusDaemon::start();
        QVERIFY(m_bus);
        for (const QString &name : {QStringLiteral("vesk"), QStringLiteral("other")})
            QVERIFY(QDBusConnection::connectToBus(m_bus->address(), name).isConnected());
    }
    void cleanupTestCase()
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("vesk"));
        QDBusConnection::disconnectFromBus(QStringLiteral("other"));
    }

private:
    std::unique_ptr<BusDaemon> m_bus;
};

} // namespace vesk
