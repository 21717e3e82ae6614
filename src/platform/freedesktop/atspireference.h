// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantList>

#include <optional>

class QDBusArgument;

namespace vesk {

/// One object on the accessibility bus.
struct AtSpiReference
{
    QString service;
    QString path;

    friend bool operator==(const AtSpiReference &, const AtSpiReference &) = default;
    [[nodiscard]] bool isNull() const;

    /// Reads a reply argument of type (so), bare or inside a variant. Null if it has another type.
    [[nodiscard]] static AtSpiReference read(const QVariant &argument);
    /// Reads a reply argument of type a(so), without null references. Empty if it has another type.
    [[nodiscard]] static QList<AtSpiReference> readList(const QVariant &argument);
};

size_t qHash(const AtSpiReference &reference, size_t seed = 0);

} // namespace vesk
