// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QString>
#include <QStringList>

namespace vesk {

/// What an application tells a screen reader: the names of what it shows.
class AccessibleTree final
{
public:
    /// `busAddress` is that of the session bus, which knows the accessibility bus.
    explicit AccessibleTree(const QString &busAddress);
    ~AccessibleTree();
    Q_DISABLE_COPY_MOVE(AccessibleTree)

    /// The names of all objects of a process, in the order of the tree; empty if it tells none.
    [[nodiscard]] QStringList names(qint64 pid) const;

private:
    struct Object
    {
        QString service;
        QString path;
    };

    [[nodiscard]] QList<Object> children(const Object &object) const;
    [[nodiscard]] QString name(const Object &object) const;
    [[nodiscard]] qint64 processOf(const QString &service) const;

    QDBusConnection m_bus;
};

} // namespace vesk
