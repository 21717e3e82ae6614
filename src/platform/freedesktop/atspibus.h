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

/// A connection to the accessibility bus. Reconnects if the bus has died and come back.
class AtSpiBus final : public QObject
{
    Q_OBJECT

public:
    AtSpiBus();
    ~AtSpiBus() override;

    /// Switches on the desktop's accessibility, so that applications offer their texts, and connects.
    /// `connected` is emitted as soon as there is such a bus.
    void start();
    /// Disconnects. Leaves the desktop's accessibility on, because others may use it.
    void stop();
    [[nodiscard]] bool isConnected() const { return m_bus && m_bus->isConnected(); }
    /// Increases whenever the connection is lost or closed: what was learned over it is no longer valid.
    [[nodiscard]] int generation() const { return m_generation; }

    /// Calls a method. Returns nullopt if there is no connection.
    [[nodiscard]] std::optional<QDBusPendingCall> send(const QDBusMessage &message,
                                                       std::chrono::milliseconds deadline);

    /// The parent object of all applications.
    [[nodiscard]] static AtSpiReference registry();

Q_SIGNALS:
    void connected();
    /// Emitted when the connection is lost or closed.
    void disconnected();
    void focusEvent(const vesk::AtSpiReference &object, bool isFocused);
    /// Emitted when an application has joined the bus or left it.
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
    /// Lets a connection attempt notice that a newer one, or none, is wanted.
    int m_attempt = 0;
    int m_failures = 0;
    QTimer m_retry;
};

} // namespace vesk
