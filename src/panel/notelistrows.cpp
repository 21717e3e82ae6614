// SPDX-License-Identifier: MIT
// The part of the list model that changes rows and tells the views of it.
#include "panel/notelistmodel.h"

#include "notes/note.h"

#include <iterator>

namespace vesk {

namespace {

using Entries = NoteSections::Entries;

/// More runs of cards than this coming and going are a new list for the eye; then each section is
/// exchanged as a whole, which is also much faster.
constexpr size_t kMostRuns = 24;

/// A run of cards to take out, or to put in, at a place of the list as it is when its turn comes.
struct Run
{
    size_t at = 0;
    size_t removed = 0;
    Entries inserted = {};
};

/// How to get from one list to the other, both in the order of `before`.
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
        while (old != from.end() && (wanted == to.end() || NoteSections::before(*old, *wanted))) {
            ++run.removed;
            ++old;
        }
        while (wanted != to.end() && (old == from.end() || NoteSections::before(*wanted, *old)))
            run.inserted.push_back(*wanted++);
        at += run.inserted.size();
        steps.push_back(std::move(run));
    }
    return steps;
}

} // namespace

void NoteListModel::place(Note &note)
{
    const Kind kind = kindOf(note);
    const Entry entry{.date = note.updatedAt(), .note = &note};
    showHeader(kind);
    insertCards(kind, m_sections.position(kind, entry), {entry});
    headerChanged(kind);
}

void NoteListModel::take(const NoteSections::CardPlace &place)
{
    removeCards(place.section, place.card, 1);
    hideHeaderIfEmpty(place.section);
    headerChanged(place.section);
}

void NoteListModel::moveTo(const NoteSections::CardPlace &from, Kind kind, Date date)
{
    showHeader(kind);
    NoteSections::Section &source = m_sections.section(from.section);
    NoteSections::Section &target = m_sections.section(kind);
    const size_t oldCard = from.card;
    const Entry entry{.date = date, .note = source.entries.at(oldCard).note};
    // Where it goes among the others; its own old entry may stand before that place.
    const bool isSameSection = from.section == kind;
    size_t card = m_sections.position(kind, entry);
    if (isSameSection && card > oldCard)
        --card;
    const auto store = [&] {
        source.entries.erase(source.entries.begin() + static_cast<std::ptrdiff_t>(oldCard));
        target.entries.insert(target.entries.begin() + static_cast<std::ptrdiff_t>(card), entry);
    };

    if (isSameSection && card == oldCard) {
        source.entries.at(oldCard) = entry;
    } else if (!source.isCollapsed && !target.isCollapsed) {
        const int row = m_sections.cardRow(from.section, oldCard);
        // The destination counts with the card still at its old place.
        const int before = m_sections.cardRow(kind, isSameSection && card > oldCard ? card + 1 : card);
        beginMoveRows({}, row, row, {}, before);
        store();
        endMoveRows();
    } else {
        removeCards(from.section, oldCard, 1);
        insertCards(kind, card, {entry});
    }

    hideHeaderIfEmpty(from.section);
    headerChanged(from.section);
    headerChanged(kind);
    if (!target.isCollapsed) {
        const QModelIndex row = index(m_sections.cardRow(kind, card));
        Q_EMIT dataChanged(row, row);
    }
}

void NoteListModel::regroup(const Grouped &wanted)
{
    std::array<std::vector<Run>, NoteSections::kCount> steps;
    size_t count = 0;
    for (const Kind kind : kNoteSections) {
        const auto i = static_cast<size_t>(kind);
        steps.at(i) = runs(m_sections.section(kind).entries, wanted.at(i));
        count += steps.at(i).size();
    }
    const bool isSweep = count > kMostRuns;
    setSweeping(isSweep);

    for (const Kind kind : kNoteSections) {
        const auto i = static_cast<size_t>(kind);
        if (steps.at(i).empty())
            continue;
        if (isSweep)
            steps.at(i) = {
                {.at = 0, .removed = m_sections.section(kind).entries.size(), .inserted = wanted.at(i)}};
        if (!wanted.at(i).empty())
            showHeader(kind);
        for (const Run &run : steps.at(i)) {
            removeCards(kind, run.at, run.removed);
            insertCards(kind, run.at, run.inserted);
        }
        hideHeaderIfEmpty(kind);
        headerChanged(kind);
    }
}

void NoteListModel::insertCards(Kind kind, size_t at, const NoteSections::Entries &entries)
{
    if (entries.empty())
        return;
    NoteSections::Section &section = m_sections.section(kind);
    const auto store = [&] {
        section.entries.insert(section.entries.begin() + static_cast<std::ptrdiff_t>(at), entries.begin(),
                               entries.end());
    };
    if (section.isCollapsed) {
        store();
        return;
    }
    const int first = m_sections.cardRow(kind, at);
    beginInsertRows({}, first, first + static_cast<int>(entries.size()) - 1);
    store();
    endInsertRows();
}

void NoteListModel::removeCards(Kind kind, size_t at, size_t count)
{
    if (count == 0)
        return;
    NoteSections::Section &section = m_sections.section(kind);
    const auto store = [&] {
        const auto first = section.entries.begin() + static_cast<std::ptrdiff_t>(at);
        section.entries.erase(first, first + static_cast<std::ptrdiff_t>(count));
    };
    if (section.isCollapsed) {
        store();
        return;
    }
    const int first = m_sections.cardRow(kind, at);
    beginRemoveRows({}, first, first + static_cast<int>(count) - 1);
    store();
    endRemoveRows();
}

void NoteListModel::showHeader(Kind kind)
{
    NoteSections::Section &section = m_sections.section(kind);
    if (section.hasHeader)
        return;
    const int row = m_sections.headerRow(kind);
    beginInsertRows({}, row, row);
    section.hasHeader = true;
    endInsertRows();
}

void NoteListModel::hideHeaderIfEmpty(Kind kind)
{
    NoteSections::Section &section = m_sections.section(kind);
    if (!section.hasHeader || !section.entries.empty())
        return;
    const int row = m_sections.headerRow(kind);
    beginRemoveRows({}, row, row);
    section.hasHeader = false;
    endRemoveRows();
}

void NoteListModel::headerChanged(Kind kind)
{
    if (!m_sections.section(kind).hasHeader)
        return;
    const QModelIndex header = index(m_sections.headerRow(kind));
    Q_EMIT dataChanged(header, header, {SectionCountRole, CollapsedRole});
}

void NoteListModel::setSweeping(bool isSweeping)
{
    if (m_isSweeping == isSweeping)
        return;
    m_isSweeping = isSweeping;
    Q_EMIT isSweepingChanged();
}

} // namespace vesk
