// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QList>
#include <QString>

namespace vesk {

/// An object in the accessibility bus's format: (so).
struct AccessibleReference
{
    QString service;
    QDBusObjectPath path;
};

inline QDBusArgument &operator<<(QDBusArgument &argument, const AccessibleReference &reference)
{
    argument.beginStructure();
    argument << reference.service << reference.path;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, AccessibleReference &reference)
{
    argument.beginStructure();
    argument >> reference.service >> reference.path;
    argument.endStructure();
    return argument;
}

} // namespace vesk

Q_DECLARE_METATYPE(vesk::AccessibleReference)
