// SPDX-License-Identifier: MIT
#pragma once

#include "components/commandkeys.h"

#include <QAbstractListModel>
#include <QPointer>
#include <QQmlEngine>

namespace vesk {

/// The global commands that an empty panel explains, each with its keys.
class CommandHints : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    /// If null, there are no rows.
    Q_PROPERTY(vesk::CommandKeys *commandKeys READ commandKeys WRITE setCommandKeys NOTIFY commandKeysChanged)

public:
    enum Role {
        KeysRole = Qt::UserRole + 1, ///< QStringList, in the notation of Vesk's texts
        HintRole,                    ///< QString
        IsTakenRole,                 ///< bool, whether the keys are taken by another program
        SpokenRole,                  ///< QString, the keys and the hint for a screen reader
    };

    [[nodiscard]] CommandKeys *commandKeys() const { return m_keys; }
    void setCommandKeys(CommandKeys *keys);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void commandKeysChanged();

private:
    void reload();
    [[nodiscard]] QStringList keysOf(size_t entry) const;
    [[nodiscard]] QString hintOf(size_t entry) const;

    QPointer<CommandKeys> m_keys;
    /// The indexes of the entries whose keys are not switched off.
    QList<size_t> m_shown;
};

} // namespace vesk
