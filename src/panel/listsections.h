// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"
#include "platform/clock.h"

#include <QString>

#include <optional>
#include <vector>

namespace vesk {

/// The sections of a list of records and what stands in them, newest first, seen as rows: a header
/// and, unless the section is collapsed, one row for each card. Owned by the list model, which tells
/// the views of every change.
class ListSections final
{
public:
    /// A record and the date by which it is placed.
    struct Entry
    {
        Date date;
        RecordId id;

        friend bool operator==(const Entry &, const Entry &) = default;
    };
    using Entries = std::vector<Entry>;

    struct Section
    {
        /// Names the section in the user's defaults.
        QString key;
        QString title;
        bool isCollapsed = false;
        bool hasHeader = false;
        Entries entries = {};
    };

    /// Where a card is, shown or in a collapsed section.
    struct CardPlace
    {
        size_t section = 0;
        size_t card = 0;
    };

    /// What a row is: a card, or with no card a section's header.
    struct RowPlace
    {
        size_t section = 0;
        std::optional<size_t> card;
    };

    /// The sections in the order in which they are shown.
    explicit ListSections(std::vector<Section> sections);

    /// The order within a section, which is also the store's.
    [[nodiscard]] static bool before(const Entry &a, const Entry &b);

    [[nodiscard]] size_t count() const { return m_sections.size(); }
    [[nodiscard]] Section &section(size_t index) { return m_sections.at(index); }
    [[nodiscard]] const Section &section(size_t index) const { return m_sections.at(index); }
    [[nodiscard]] const Entry &entry(const CardPlace &place) const
    {
        return section(place.section).entries.at(place.card);
    }

    [[nodiscard]] int rowCount() const;
    /// `row` is at least 0 and less than `rowCount`.
    [[nodiscard]] RowPlace place(int row) const;
    /// The row of a section's header, or the one that it would have.
    [[nodiscard]] int headerRow(size_t index) const;
    /// The row of a card, or the one that a card put there would have; the section is not collapsed.
    [[nodiscard]] int cardRow(const CardPlace &place) const;
    /// Where an entry stands, or would stand, in a section.
    [[nodiscard]] size_t position(size_t index, const Entry &entry) const;
    /// Where the record with this identity stands, in a collapsed section too.
    [[nodiscard]] std::optional<CardPlace> find(const RecordId &id) const;

    // The cards of all sections that are not collapsed, in order.
    [[nodiscard]] int visibleCount() const;
    [[nodiscard]] const RecordId &visibleAt(int index) const;
    [[nodiscard]] std::optional<int> visibleIndex(const RecordId &id) const;

private:
    std::vector<Section> m_sections;
};

} // namespace vesk
