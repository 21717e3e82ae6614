// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantList>

#include <chrono>
#include <optional>

namespace vesk {

/// The name of one object on the accessibility bus: who has it, and its path there.
struct AtSpiReference
{
    QString service;
    QString path;

    friend bool operator==(const AtSpiReference &, const AtSpiReference &) = default;
    [[nodiscard]] bool isNull() const;
};

/// The accessibility bus: a connection of its own, with calls that never wait longer than their
/// deadline.
class AtSpiBus final : public QObject
{
    Q_OBJECT

public:
    /// The longest wait for one answer. A working application answers within a few milliseconds.
    static constexpr std::chrono::milliseconds kDeadline{100};

    using QObject::QObject;
    ~AtSpiBus() override;

    /// Switches the desktop's accessibility on, so that applications offer their texts, and connects.
    /// `connected` follows, unless there is no such bus.
    void start();
    /// Disconnects; the desktop's accessibility stays as it is, since others may use it.
    void stop();
    [[nodiscard]] bool isConnected() const { return m_bus && m_bus->isConnected(); }

    /// Calls a method. None if there is no connection, the answer is an error, or none comes in time.
    QCoro::Task<std::optional<QVariantList>> call(AtSpiReference object, QString interface, QString method,
                                                  QVariantList arguments = {});

    /// Process that owns a connection to the bus; none if it is gone.
    QCoro::Task<std::optional<qint64>> processIdentifier(QString service);

Q_SIGNALS:
    void connected();
    void focusEvent(const vesk::AtSpiReference &object, bool isFocused);

private Q_SLOTS:
    void onStateChanged(const QDBusMessage &message);

private:
    QCoro::Task<> connectToBus();
    static void registerEvent(const QDBusConnection &bus, const QString &name);

    std::optional<QDBusConnection> m_bus;
    /// Tells a connection in the making that it is no longer wanted.
    int m_generation = 0;
};

} // namespace vesk
