// SPDX-License-Identifier: MIT
#include "panel/listsections.h"

#include <algorithm>

namespace vesk {

namespace {

int cardsOf(const ListSections::Section &section)
{
    return section.isCollapsed ? 0 : static_cast<int>(section.entries.size());
}

int rowsOf(const ListSections::Section &section)
{
    return (section.hasHeader ? 1 : 0) + cardsOf(section);
}

} // namespace

ListSections::ListSections(std::vector<Section> sections)
    : m_sections(std::move(sections))
{
}

bool ListSections::before(const Entry &a, const Entry &b)
{
    return a.date != b.date ? a.date > b.date : a.id < b.id;
}

int ListSections::rowCount() const
{
    int rows = 0;
    for (const Section &each : m_sections)
        rows += rowsOf(each);
    return rows;
}

ListSections::RowPlace ListSections::place(int row) const
{
    for (size_t i = 0; i < m_sections.size(); ++i) {
        const int rows = rowsOf(m_sections[i]);
        if (row < rows)
            return {.section = i,
                    .card = row == 0 ? std::nullopt : std::optional(static_cast<size_t>(row - 1))};
        row -= rows;
    }
    Q_UNREACHABLE();
}

int ListSections::headerRow(size_t index) const
{
    int row = 0;
    for (size_t i = 0; i < index; ++i)
        row += rowsOf(m_sections[i]);
    return row;
}

int ListSections::cardRow(const CardPlace &place) const
{
    return headerRow(place.section) + 1 + static_cast<int>(place.card);
}

size_t ListSections::position(size_t index, const Entry &entry) const
{
    const Entries &entries = section(index).entries;
    return static_cast<size_t>(std::ranges::lower_bound(entries, entry, before) - entries.begin());
}

std::optional<ListSections::CardPlace> ListSections::find(const RecordId &id) const
{
    for (size_t i = 0; i < m_sections.size(); ++i) {
        const Entries &entries = m_sections[i].entries;
        const auto found = std::ranges::find(entries, id, &Entry::id);
        if (found != entries.end())
            return CardPlace{.section = i, .card = static_cast<size_t>(found - entries.begin())};
    }
    return std::nullopt;
}

int ListSections::visibleCount() const
{
    int count = 0;
    for (const Section &each : m_sections)
        count += cardsOf(each);
    return count;
}

const RecordId &ListSections::visibleAt(int index) const
{
    for (const Section &each : m_sections) {
        const int cards = cardsOf(each);
        if (index < cards)
            return each.entries.at(static_cast<size_t>(index)).id;
        index -= cards;
    }
    Q_UNREACHABLE();
}

std::optional<int> ListSections::visibleIndex(const RecordId &id) const
{
    const std::optional<CardPlace> found = find(id);
    if (!found || section(found->section).isCollapsed)
        return std::nullopt;
    int index = static_cast<int>(found->card);
    for (size_t i = 0; i < found->section; ++i)
        index += cardsOf(m_sections[i]);
    return index;
}

} // namespace vesk
