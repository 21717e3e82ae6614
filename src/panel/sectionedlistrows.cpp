// SPDX-License-Identifier: MIT
// The part of the list model that changes rows and notifies the views.
#include "panel/sectionedlistmodel.h"

#include <algorithm>
#include <iterator>

namespace vesk {

namespace {

using Entries = ListSections::Entries;

/// If more runs of cards than this come and go, the list looks entirely new anyway; exchanging each section
/// as a whole is then much faster.
constexpr size_t kMostRuns = 24;

/// A run of cards to remove, or to insert, at a position in the list as it is at that time.
struct Run
{
    size_t at = 0;
    size_t removed = 0;
    Entries inserted = {};
};

/// How to turn one list into the other; both are in the order of `before`.
std::vector<Run> runs(const Entries &from, const Entries &to)
{
    std::vector<Run> steps;
    auto old = from.begin();
    auto wanted = to.begin();
    size_t at = 0;
    while (old != from.end() || wanted != to.end()) {
        if (old != from.end() && wanted != to.end() && *old == *wanted) {
            ++old;
            ++wanted;
            ++at;
            continue;
        }
        Run run{.at = at};
        while (old != from.end() && (wanted == to.end() || ListSections::before(*old, *wanted))) {
            ++run.removed;
            ++old;
        }
        while (wanted != to.end() && (old == from.end() || ListSections::before(*wanted, *old)))
            run.inserted.push_back(*wanted++);
        at += run.inserted.size();
        steps.push_back(std::move(run));
    }
    return steps;
}

} // namespace

void SectionedListModel::place(size_t section, const Entry &entry)
{
    showHeader(section);
    insertCards({.section = section, .card = m_sections.position(section, entry)}, {entry});
    headerChanged(section);
}

void SectionedListModel::take(const CardPlace &place)
{
    removeCards(place, 1);
    hideHeaderIfEmpty(place.section);
    headerChanged(place.section);
}

void SectionedListModel::moveTo(const CardPlace &from, size_t section, Date date, const QList<int> &roles)
{
    showHeader(section);
    ListSections::Section &source = m_sections.section(from.section);
    ListSections::Section &target = m_sections.section(section);
    const Entry entry{.date = date, .id = source.entries.at(from.card).id};
    // Its position among the others; its own old entry may come before that.
    const bool isSameSection = from.section == section;
    CardPlace to{.section = section, .card = m_sections.position(section, entry)};
    if (isSameSection && to.card > from.card)
        --to.card;
    const auto store = [&] {
        source.entries.erase(source.entries.begin() + static_cast<std::ptrdiff_t>(from.card));
        target.entries.insert(target.entries.begin() + static_cast<std::ptrdiff_t>(to.card), entry);
    };

    if (isSameSection && to.card == from.card) {
        source.entries.at(from.card) = entry;
    } else if (!source.isCollapsed && !target.isCollapsed) {
        const int row = m_sections.cardRow(from);
        // The destination is counted with the card still at its old position.
        const bool isDownwards = isSameSection && to.card > from.card;
        beginMoveRows({}, row, row, {}, m_sections.cardRow(to) + (isDownwards ? 1 : 0));
        store();
        endMoveRows();
    } else {
        removeCards(from, 1);
        insertCards(to, {entry});
    }

    if (!isSameSection) {
        hideHeaderIfEmpty(from.section);
        headerChanged(from.section);
        headerChanged(section);
    }
    if (!target.isCollapsed) {
        const QModelIndex row = index(m_sections.cardRow(to));
        Q_EMIT dataChanged(row, row, roles);
    }
}

void SectionedListModel::regroup(const Grouped &wanted, Regroup how)
{
    std::vector<std::vector<Run>> steps;
    size_t count = 0;
    for (size_t i = 0; i < m_sections.count(); ++i) {
        steps.push_back(runs(m_sections.section(i).entries, wanted.at(i)));
        count += steps.back().size();
    }
    const bool isSweep = count > kMostRuns;
    setSweeping(isSweep || how == Regroup::AtOnce);

    for (size_t i = 0; i < m_sections.count(); ++i) {
        if (steps.at(i).empty())
            continue;
        if (isSweep)
            steps.at(i) = {
                {.at = 0, .removed = m_sections.section(i).entries.size(), .inserted = wanted.at(i)}};
        if (!wanted.at(i).empty())
            showHeader(i);
        for (const Run &run : steps.at(i)) {
            removeCards({.section = i, .card = run.at}, run.removed);
            insertCards({.section = i, .card = run.at}, run.inserted);
        }
        hideHeaderIfEmpty(i);
        headerChanged(i);
    }
}

void SectionedListModel::exchange(const Grouped &wanted)
{
    setSweeping(true);
    for (size_t i = 0; i < m_sections.count(); ++i) {
        if (m_sections.section(i).entries == wanted.at(i))
            continue;
        if (!wanted.at(i).empty())
            showHeader(i);
        exchangeCards(i, wanted.at(i));
        hideHeaderIfEmpty(i);
        headerChanged(i);
    }
}

void SectionedListModel::exchangeCards(size_t index, const Entries &wanted)
{
    ListSections::Section &section = m_sections.section(index);
    Entries &entries = section.entries;
    // Remove first, because no card may be in the list twice.
    if (entries.size() > wanted.size())
        removeCards({.section = index, .card = wanted.size()}, entries.size() - wanted.size());
    const size_t kept = entries.size();
    const auto [old, other] = std::ranges::mismatch(entries, wanted);
    const auto first = static_cast<size_t>(old - entries.begin());
    std::copy_n(other, kept - first, old);
    if (first < kept && !section.isCollapsed) {
        const int row = m_sections.cardRow({.section = index, .card = first});
        Q_EMIT dataChanged(this->index(row), this->index(row + static_cast<int>(kept - first) - 1));
    }
    insertCards({.section = index, .card = kept},
                Entries(wanted.begin() + static_cast<std::ptrdiff_t>(kept), wanted.end()));
}

void SectionedListModel::rowsChanged(const QList<int> &roles)
{
    if (const int rows = m_sections.rowCount(); rows > 0)
        Q_EMIT dataChanged(index(0), index(rows - 1), roles);
}

void SectionedListModel::insertCards(const CardPlace &at, const ListSections::Entries &entries)
{
    if (entries.empty())
        return;
    ListSections::Section &section = m_sections.section(at.section);
    const auto store = [&] {
        section.entries.insert(section.entries.begin() + static_cast<std::ptrdiff_t>(at.card),
                               entries.begin(), entries.end());
    };
    if (section.isCollapsed) {
        store();
        return;
    }
    const int first = m_sections.cardRow(at);
    beginInsertRows({}, first, first + static_cast<int>(entries.size()) - 1);
    store();
    endInsertRows();
}

void SectionedListModel::removeCards(const CardPlace &at, size_t count)
{
    if (count == 0)
        return;
    ListSections::Section &section = m_sections.section(at.section);
    const auto store = [&] {
        const auto first = section.entries.begin() + static_cast<std::ptrdiff_t>(at.card);
        section.entries.erase(first, first + static_cast<std::ptrdiff_t>(count));
    };
    if (section.isCollapsed) {
        store();
        return;
    }
    const int first = m_sections.cardRow(at);
    beginRemoveRows({}, first, first + static_cast<int>(count) - 1);
    store();
    endRemoveRows();
}

void SectionedListModel::showHeader(size_t index)
{
    ListSections::Section &section = m_sections.section(index);
    if (section.hasHeader)
        return;
    const int row = m_sections.headerRow(index);
    beginInsertRows({}, row, row);
    section.hasHeader = true;
    endInsertRows();
}

void SectionedListModel::hideHeaderIfEmpty(size_t index)
{
    ListSections::Section &section = m_sections.section(index);
    if (!section.hasHeader || !section.entries.empty())
        return;
    const int row = m_sections.headerRow(index);
    beginRemoveRows({}, row, row);
    section.hasHeader = false;
    endRemoveRows();
}

void SectionedListModel::headerChanged(size_t section)
{
    if (!m_sections.section(section).hasHeader)
        return;
    const QModelIndex header = index(m_sections.headerRow(section));
    Q_EMIT dataChanged(header, header, {SectionCountRole, CollapsedRole});
}

} // namespace vesk
