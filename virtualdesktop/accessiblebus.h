// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QString>
#include <QVariant>

namespace vesk {

/// A screen reader's connection to the accessibility bus.
class AccessibleBus final
{
public:
    /// An object of an application.
    struct Object
    {
        QString service;
        QString path;
    };

    /// `sessionAddress` is that of the session bus, which provides the address of the accessibility bus.
    explicit AccessibleBus(const QString &sessionAddress);
    ~AccessibleBus();
    Q_DISABLE_COPY_MOVE(AccessibleBus)

    /// The answer to a call; invalid if there was no answer.
    [[nodiscard]] QVariant ask(const Object &object, const QString &interface, const QString &method,
                               const QVariantList &arguments = {}) const;
    [[nodiscard]] QVariant property(const Object &object, const QString &interface,
                                    const QString &name) const;
    [[nodiscard]] QString nameOf(const Object &object) const;
    [[nodiscard]] qint64 processOf(const QString &service) const;

    [[nodiscard]] QDBusConnection &connection() { return m_bus; }

private:
    QDBusConnection m_bus;
};

} // namespace vesk
