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

    /// From an answer's argument of the type (so), bare or within a variant; null if it is none.
    [[nodiscard]] static AtSpiReference read(const QVariant &argument);
    /// From an answer's argument of the type a(so), without null references; empty if it is none.
    [[nodiscard]] static QList<AtSpiReference> readList(const QVariant &argument);
};

size_t qHash(const AtSpiReference &reference, size_t seed = 0);

} // namespace vesk
