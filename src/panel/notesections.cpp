// SPDX-License-Identifier: MIT
#include "panel/notesections.h"

#include "notes/note.h"

#include <QCoreApplication>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

int rowsOf(const NoteSections::Section &section)
{
    const int cards = section.isCollapsed ? 0 : static_cast<int>(section.entries.size());
    return (section.hasHeader ? 1 : 0) + cards;
}

} // namespace

NoteSections::NoteSections()
    : m_sections{
        Section{.key = u"pinned"_s, .title = QCoreApplication::translate("NoteSections", "Pinned")},
        Section{.key = u"today"_s, .title = QCoreApplication::translate("NoteSections", "Today")},
        Section{.key = u"earlier"_s, .title = QCoreApplication::translate("NoteSections", "Earlier")}}
{
}

bool NoteSections::before(const Entry &a, const Entry &b)
{
    return a.date != b.date ? a.date > b.date : a.note->id() < b.note->id();
}

int NoteSections::rowCount() const
{
    int rows = 0;
    for (const Section &each : m_sections)
        rows += rowsOf(each);
    return rows;
}

NoteSections::RowPlace NoteSections::place(int row) const
{
    for (const Kind kind : kNoteSections) {
        const int rows = rowsOf(section(kind));
        if (row < rows)
            return {.section = kind,
                    .card = row == 0 ? std::nullopt : std::optional(static_cast<size_t>(row - 1))};
        row -= rows;
    }
    Q_UNREACHABLE();
}

int NoteSections::headerRow(Kind kind) const
{
    int row = 0;
    for (const Kind each : kNoteSections) {
        if (each == kind)
            break;
        row += rowsOf(section(each));
    }
    return row;
}

int NoteSections::cardRow(Kind kind, size_t card) const
{
    return headerRow(kind) + 1 + static_cast<int>(card);
}

size_t NoteSections::position(Kind kind, const Entry &entry) const
{
    const Entries &entries = section(kind).entries;
    return static_cast<size_t>(std::ranges::lower_bound(entries, entry, before) - entries.begin());
}

std::optional<NoteSections::CardPlace> NoteSections::find(const RecordId &id) const
{
    for (const Kind kind : kNoteSections) {
        const Entries &entries = section(kind).entries;
        const auto found =
            std::ranges::find_if(entries, [&id](const Entry &e) { return e.note->id() == id; });
        if (found != entries.end())
            return CardPlace{.section = kind, .card = static_cast<size_t>(found - entries.begin())};
    }
    return std::nullopt;
}

Note &NoteSections::note(const CardPlace &place) const
{
    return *section(place.section).entries.at(place.card).note;
}

int NoteSections::visibleCount() const
{
    int count = 0;
    for (const Section &each : m_sections)
        count += each.isCollapsed ? 0 : static_cast<int>(each.entries.size());
    return count;
}

Note &NoteSections::visibleAt(int index) const
{
    auto left = static_cast<size_t>(index);
    for (const Section &each : m_sections) {
        if (each.isCollapsed)
            continue;
        if (left < each.entries.size())
            return *each.entries.at(left).note;
        left -= each.entries.size();
    }
    Q_UNREACHABLE();
}

std::optional<int> NoteSections::visibleIndex(const RecordId &id) const
{
    const std::optional<CardPlace> found = find(id);
    if (!found || section(found->section).isCollapsed)
        return std::nullopt;
    size_t index = found->card;
    for (const Kind kind : kNoteSections) {
        if (kind == found->section)
            break;
        index += section(kind).isCollapsed ? 0 : section(kind).entries.size();
    }
    return static_cast<int>(index);
}

} // namespace vesk
