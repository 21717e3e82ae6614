// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/accessiblebus.h"
#include "virtualdesktop/accessibleobject.h"

#include <QList>
#include <QString>
#include <QStringList>

namespace vesk {

/// What an application tells a screen reader about everything that it shows.
class AccessibleTree final
{
public:
    /// `busAddress` is that of the session bus, which provides the address of the accessibility bus.
    explicit AccessibleTree(const QString &busAddress)
        : m_bus(busAddress)
    {
    }

    /// The names of all objects of a process, in tree order; empty if it exposes none.
    [[nodiscard]] QStringList names(qint64 pid) const;

    /// Everything that the process exposes about them, in the same order.
    [[nodiscard]] QList<AccessibleObject> objects(qint64 pid) const;

private:
    using Object = AccessibleBus::Object;

    [[nodiscard]] QList<Object> all(qint64 pid) const;
    [[nodiscard]] QList<Object> children(const Object &object) const;
    [[nodiscard]] AccessibleObject describe(const Object &object) const;
    [[nodiscard]] quint64 states(const Object &object) const;
    [[nodiscard]] QRect area(const Object &object) const;

    AccessibleBus m_bus;
};

} // namespace vesk
