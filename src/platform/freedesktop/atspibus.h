// SPDX-License-Identifier: MIT
#pragma once

#include "platform/freedesktop/atspireference.h"

#include <QCoroTask>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

class QDBusServiceWatcher;

namespace vesk {

/// The accessibility bus: a connection of its own, made again when the bus has died and is back.
class AtSpiBus final : public QObject
{
    Q_OBJECT

public:
    AtSpiBus();
    ~AtSpiBus() override;

    /// Switches the desktop's accessibility on, so that applications offer their texts, and connects.
    /// `connected` follows, whenever there is such a bus.
    void start();
    /// Disconnects; the desktop's accessibility stays as it is, since others may use it.
    void stop();
    [[nodiscard]] bool isConnected() const { return m_bus && m_bus->isConnected(); }
    /// Rises whenever the connection is left: what was learned over it is then worth nothing.
    [[nodiscard]] int generation() const { return m_generation; }

    /// Calls a method. None if there is no connection.
    [[nodiscard]] std::optional<QDBusPendingCall> send(const QDBusMessage &message,
                                                       std::chrono::milliseconds deadline);

    /// The object below which all applications are.
    [[nodiscard]] static AtSpiReference registry();

Q_SIGNALS:
    void connected();
    /// The connection is lost or left.
    void disconnected();
    void focusEvent(const vesk::AtSpiReference &object, bool isFocused);
    /// An application has come to the bus or left it.
    void applicationAdded(const vesk::AtSpiReference &root);
    void applicationRemoved(const vesk::AtSpiReference &root);

private Q_SLOTS:
    void onStateChanged(const QDBusMessage &message);
    void onChildrenChanged(const QDBusMessage &message);
    void onDisconnected();

private:
    QCoro::Task<> connectToBus();
    void connectLater();
    void leaveBus();
    void listen(QDBusConnection bus);
    void registerEvents();

    bool m_isStarted = false;
    std::optional<QDBusConnection> m_bus;
    std::unique_ptr<QDBusServiceWatcher> m_registryWatcher;
    QString m_address;
    int m_generation = 0;
    /// Tells a connection in the making that a newer one is wanted, or none.
    int m_attempt = 0;
    int m_failures = 0;
    QTimer m_retry;
};

} // namespace vesk
