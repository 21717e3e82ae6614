// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace vesk {

class GlobalKeys;

/// The state of the key combinations, for other processes and for people.
struct KeysReport
{
    Q_DECLARE_TR_FUNCTIONS(vesk::KeysReport)

public:
    struct Key
    {
        /// The words after `vesk` that do the same.
        QString command;
        /// As printed on the user's keyboard; empty if switched off.
        QString keys;
        QString purpose;
        /// "works", "taken", "off", "no-access" or, without a running Vesk, "unknown".
        QString state;
        /// The programs one of which has the combination; empty if it is not taken or nobody can tell.
        QStringList takenBy;
        /// The identifiers of the applications that keep the combination while they are in front.
        QStringList notIn = {};
    };

    QList<Key> keys;
    /// The problems in the user's file.
    QStringList problems;

    [[nodiscard]] static KeysReport of(const GlobalKeys &keys);
    /// Returns what the user's file says, with the keys of an ANSI keyboard.
    [[nodiscard]] static KeysReport withoutVesk(const QString &fileText);

    /// Converts the keys to and from the maps that are sent to another process, keyed by field name.
    [[nodiscard]] QList<QVariantMap> toMaps() const;
    [[nodiscard]] static KeysReport fromMaps(const QList<QVariantMap> &maps, const QStringList &problems);
};

} // namespace vesk
