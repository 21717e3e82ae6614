// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>
#include <QQmlEngine>

namespace vesk {

/// The global commands that an empty panel tells of, each with its keys.
class CommandHints : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    enum Role {
        KeysRole = Qt::UserRole + 1, ///< QStringList, in the notation of Vesk's texts
        HintRole,                    ///< QString
    };

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace vesk
