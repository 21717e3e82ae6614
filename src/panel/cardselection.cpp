// SPDX-License-Identifier: MIT
#include "panel/cardselection.h"

#include "panel/sectionedlistmodel.h"

#include <algorithm>

namespace vesk {

CardSelection::CardSelection(const SectionedListModel &list)
    : m_list(&list)
{
}

std::optional<RecordId> CardSelection::selected() const
{
    return index() ? m_selected : std::nullopt;
}

QString CardSelection::cardId() const
{
    return m_selected ? m_selected->toString(QUuid::WithoutBraces) : QString();
}

void CardSelection::select(const std::optional<RecordId> &id)
{
    if (m_selected == id)
        return;
    m_selected = id;
    Q_EMIT changed();
}

std::optional<int> CardSelection::index() const
{
    return m_selected ? m_list->visibleIndex(*m_selected) : std::nullopt;
}

void CardSelection::move(int delta)
{
    const int count = m_list->visibleCount();
    if (count == 0)
        return;
    const std::optional<int> current = index();
    const int start = delta > 0 ? 0 : count - 1;
    select(m_list->visibleAt(current ? std::clamp(*current + delta, 0, count - 1) : start));
}

void CardSelection::leave(const RecordId &id)
{
    const std::optional<int> current = index();
    if (!current || m_selected != id)
        return;
    const int last = m_list->visibleCount() - 1;
    if (last == 0)
        select(std::nullopt);
    else
        select(m_list->visibleAt(*current < last ? *current + 1 : last - 1));
}

bool CardSelection::isInSight(Target target)
{
    m_isInSight = true;
    Q_EMIT sightAsked(target);
    return m_isInSight;
}

bool CardSelection::selectSomething()
{
    if (!index())
        move(1);
    return m_list->visibleCount() > 0;
}

} // namespace vesk
