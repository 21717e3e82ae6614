// SPDX-License-Identifier: MIT
#include "editor/visibleboxes.h"

namespace vesk {

int VisibleBoxes::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_boxes.size());
}

QVariant VisibleBoxes::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Box &box = m_boxes.at(index.row());
    switch (role) {
    case SquareRole:
        return box.square;
    case TickedRole:
        return box.isTicked;
    case LabelRole:
        return box.label;
    case PositionRole:
        return static_cast<int>(box.position);
    default:
        return {};
    }
}

QHash<int, QByteArray> VisibleBoxes::roleNames() const
{
    return {
        {SquareRole, "square"}, {TickedRole, "isTicked"}, {LabelRole, "label"}, {PositionRole, "position"}};
}

void VisibleBoxes::follow(const Splice &change)
{
    for (Box &box : m_boxes) {
        if (box.position >= change.position + change.removed.size())
            box.position += change.growth();
    }
}

void VisibleBoxes::remove(qsizetype row)
{
    beginRemoveRows({}, static_cast<int>(row), static_cast<int>(row));
    m_boxes.removeAt(row);
    endRemoveRows();
}

void VisibleBoxes::update(const QList<Box> &boxes)
{
    qsizetype row = 0;
    for (const Box &box : boxes) {
        while (row < m_boxes.size() && m_boxes.at(row).position < box.position)
            remove(row);
        if (row == m_boxes.size() || m_boxes.at(row).position != box.position) {
            beginInsertRows({}, static_cast<int>(row), static_cast<int>(row));
            m_boxes.insert(row, box);
            endInsertRows();
        } else if (m_boxes.at(row) != box) {
            m_boxes[row] = box;
            const QModelIndex changed = index(static_cast<int>(row));
            Q_EMIT dataChanged(changed, changed);
        }
        ++row;
    }
    while (m_boxes.size() > row)
        remove(m_boxes.size() - 1);
}

} // namespace vesk
