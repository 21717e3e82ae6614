// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"
#include "platform/clock.h"

#include <QString>

#include <optional>
#include <vector>

namespace vesk {

/// The sections of a list of records and their entries, newest first, seen as rows: a header and, unless the
/// section is collapsed, a row for each card. Owned by the list model, which reports every change to the
/// views.
class ListSections final
{
public:
    /// A record and the date that it is sorted by.
    struct Entry
    {
        Date date;
        RecordId id;

        friend bool operator==(const Entry &, const Entry &) = default;
    };
    using Entries = std::vector<Entry>;

    struct Section
    {
        /// The section's name in the user's defaults.
        QString key;
        QString title;
        bool isCollapsed = false;
        bool hasHeader = false;
        Entries entries = {};
    };

    /// The position of a card, whether it is shown or in a collapsed section.
    struct CardPlace
    {
        size_t section = 0;
        size_t card = 0;
    };

    /// What a row is: a card, or a section's header if there is no card.
    struct RowPlace
    {
        size_t section = 0;
        std::optional<size_t> card;
    };

    /// `sections` is in display order.
    explicit ListSections(std::vector<Section> sections);

    /// The sort order within a section, which is also the store's.
    [[nodiscard]] static bool before(const Entry &a, const Entry &b);

    [[nodiscard]] size_t count() const { return m_sections.size(); }
    [[nodiscard]] Section &section(size_t index) { return m_sections.at(index); }
    [[nodiscard]] const Section &section(size_t index) const { return m_sections.at(index); }
    [[nodiscard]] const Entry &entry(const CardPlace &place) const
    {
        return section(place.section).entries.at(place.card);
    }

    [[nodiscard]] int rowCount() const;
    /// `row` must be at least 0 and less than `rowCount`.
    [[nodiscard]] RowPlace place(int row) const;
    /// The row of a section's header, or the row that it would have.
    [[nodiscard]] int headerRow(size_t index) const;
    /// The row of a card, or of a card inserted there; the section must not be collapsed.
    [[nodiscard]] int cardRow(const CardPlace &place) const;
    /// Where an entry is, or would be inserted, in a section.
    [[nodiscard]] size_t position(size_t index, const Entry &entry) const;
    /// Where the record with this identity is, including collapsed sections.
    [[nodiscard]] std::optional<CardPlace> find(const RecordId &id) const;

    // The cards of all sections that are not collapsed, in order.
    [[nodiscard]] int visibleCount() const;
    [[nodiscard]] const RecordId &visibleAt(int index) const;
    [[nodiscard]] std::optional<int> visibleIndex(const RecordId &id) const;

private:
    std::vector<Section> m_sections;
};

} // namespace vesk
