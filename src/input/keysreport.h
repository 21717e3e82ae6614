// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace vesk {

class GlobalKeys;

/// What there is to tell about the combinations, for other processes and for people.
struct KeysReport
{
    Q_DECLARE_TR_FUNCTIONS(vesk::KeysReport)

public:
    struct Key
    {
        /// The words after `vesk` that do the same.
        QString command;
        /// As they are printed on the user's keyboard; empty if they are switched off.
        QString keys;
        QString purpose;
        /// "works", "taken", "off", "no-access" or, without a running Vesk, "unknown".
        QString state;
        /// The programs of which one has what is taken; empty if that cannot be told.
        QStringList takenBy;
    };

    QList<Key> keys;
    /// What is wrong with the user's file.
    QStringList problems;

    [[nodiscard]] static KeysReport of(const GlobalKeys &keys);
    /// What the user's file says, with the keys called as on an ANSI keyboard.
    [[nodiscard]] static KeysReport withoutVesk(const QString &fileText);

    /// Each key as it is sent to another process, by the names of its fields; and the way back.
    [[nodiscard]] QList<QVariantMap> toMaps() const;
    [[nodiscard]] static KeysReport fromMaps(const QList<QVariantMap> &maps, const QStringList &problems);
};

} // namespace vesk
