// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/accessibleobject.h"

#include <QDBusConnection>
#include <QList>
#include <QString>
#include <QStringList>

namespace vesk {

/// What an application tells a screen reader: everything that it shows.
class AccessibleTree final
{
public:
    /// `busAddress` is that of the session bus, which knows the accessibility bus.
    explicit AccessibleTree(const QString &busAddress);
    ~AccessibleTree();
    Q_DISABLE_COPY_MOVE(AccessibleTree)

    /// The names of all objects of a process, in the order of the tree; empty if it tells none.
    [[nodiscard]] QStringList names(qint64 pid) const;

    /// All that it tells of them, in the same order.
    [[nodiscard]] QList<AccessibleObject> objects(qint64 pid) const;

private:
    struct Object
    {
        QString service;
        QString path;
    };

    [[nodiscard]] QList<Object> all(qint64 pid) const;
    [[nodiscard]] QList<Object> children(const Object &object) const;
    [[nodiscard]] AccessibleObject describe(const Object &object) const;
    [[nodiscard]] QVariant property(const Object &object, const QString &interface,
                                    const QString &name) const;
    /// The answer to a call without a value for what was not answered.
    [[nodiscard]] QVariant ask(const Object &object, const QString &interface, const QString &method,
                               const QVariantList &arguments = {}) const;
    [[nodiscard]] quint64 states(const Object &object) const;
    [[nodiscard]] QRect area(const Object &object) const;
    [[nodiscard]] qint64 processOf(const QString &service) const;

    QDBusConnection m_bus;
};

} // namespace vesk
