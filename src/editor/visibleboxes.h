// SPDX-License-Identifier: MIT
#pragma once

#include "editor/boxgeometry.h"
#include "editor/splice.h"

#include <QAbstractListModel>

namespace vesk {

/// The visible checkboxes, in order. A checkbox keeps its row while it stays visible, so that neither its
/// picture nor its screen reader object is created anew.
class VisibleBoxes final : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        /// QRectF, in the document's coordinates.
        SquareRole = Qt::UserRole + 1,
        /// bool
        TickedRole,
        /// QString: the line's text.
        LabelRole,
        /// int: position of the checkbox in the text.
        PositionRole,
    };

    using QAbstractListModel::QAbstractListModel;

    [[nodiscard]] int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Keeps rows attached to their checkboxes when the text before them changes. Must be followed by an
    /// `update`.
    void follow(const Splice &change);
    void update(const QList<Box> &boxes);

private:
    void remove(qsizetype row);

    QList<Box> m_boxes;
};

} // namespace vesk
