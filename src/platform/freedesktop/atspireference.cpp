// SPDX-License-Identifier: MIT
#include "platform/freedesktop/atspireference.h"

#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QHash>

namespace vesk {

using namespace Qt::StringLiterals;

namespace {

AtSpiReference readStructure(const QDBusArgument &argument)
{
    QString service;
    QDBusObjectPath path;
    argument.beginStructure();
    argument >> service >> path;
    argument.endStructure();
    return {.service = service, .path = path.path()};
}

} // namespace

bool AtSpiReference::isNull() const
{
    return service.isEmpty() || path.isEmpty() || path == "/org/a11y/atspi/null"_L1;
}

AtSpiReference AtSpiReference::read(const QVariant &argument)
{
    const QVariant value =
        argument.canConvert<QDBusVariant>() ? argument.value<QDBusVariant>().variant() : argument;
    if (!value.canConvert<QDBusArgument>())
        return {};
    const auto structure = value.value<QDBusArgument>();
    if (structure.currentSignature() != "(so)"_L1)
        return {};
    return readStructure(structure);
}

QList<AtSpiReference> AtSpiReference::readList(const QVariant &argument)
{
    QList<AtSpiReference> references;
    if (!argument.canConvert<QDBusArgument>())
        return references;
    const auto array = argument.value<QDBusArgument>();
    if (array.currentSignature() != "a(so)"_L1)
        return references;
    array.beginArray();
    while (!array.atEnd()) {
        const AtSpiReference reference = readStructure(array);
        if (!reference.isNull())
            references.append(reference);
    }
    array.endArray();
    return references;
}

size_t qHash(const AtSpiReference &reference, size_t seed)
{
    return qHashMulti(seed, reference.service, reference.path);
}

} // namespace vesk
