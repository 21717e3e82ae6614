// SPDX-License-Identifier: MIT
#pragma once

#include "editor/boxgeometry.h"
#include "editor/splice.h"

#include <QAbstractListModel>

namespace vesk {

/// The checkboxes that can be seen, in order. A box keeps its row while it stays in sight, so that
/// neither its picture nor a screen reader's hold on it is made anew.
class VisibleBoxes final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        /// QRectF, in the document's coordinates.
        SquareRole = Qt::UserRole + 1,
        /// bool
        TickedRole,
        /// QString: what the line says.
        LabelRole,
        /// int: position of the box in the text.
        PositionRole,
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Keeps boxes the same ones over a change of the text before them. An `update` has to follow.
    void follow(const Splice &change);
    void update(const QList<Box> &boxes);

private:
    void remove(qsizetype row);

    QList<Box> m_boxes;
};

} // namespace vesk
