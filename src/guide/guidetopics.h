// SPDX-License-Identifier: MIT
#pragma once

#include "components/keylabels.h"

#include <QAbstractListModel>
#include <QQmlEngine>

namespace vesk {

/// What the guide tells of, one row a topic: only what is true on this desktop.
class GuideTopics : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT

public:
    enum Role {
        SymbolRole = Qt::UserRole + 1, ///< QString, the name of a system symbol
        TitleRole,                     ///< QString
        KeysRole,                      ///< QStringList, in the notation of Vesk's texts; may be empty
        PlaceRole,                     ///< KeyLabels::Place in which those keys are pressed
        TextRole,                      ///< QString, with keys spelt as this desktop's keyboard has them
        SpokenRole,                    ///< QString, title and keys as a screen reader says them
        ShowsAccessRole,               ///< bool, whether what it tells of needs access to other applications
    };

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;
};

} // namespace vesk
