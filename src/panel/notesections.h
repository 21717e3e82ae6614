// SPDX-License-Identifier: MIT
#pragma once

#include "notes/record.h"
#include "platform/clock.h"

#include <QString>

#include <array>
#include <optional>
#include <vector>

namespace vesk {

/// The sections of the list of notes and what stands in them, newest first, seen as rows: a header
/// and, unless the section is collapsed, one row for each card. Owned by the list model, which tells
/// the views of every change.
class NoteSections final
{
public:
    static constexpr int kCount = 3;

    /// In the order in which they are shown.
    enum class Kind {
        Pinned,
        Today,
        Earlier,
    };

    /// A note and the date by which it is placed.
    struct Entry
    {
        Date date;
        Note *note = nullptr;

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
        Kind section = Kind::Pinned;
        size_t card = 0;
    };

    /// What a row is: a card, or with no card a section's header.
    struct RowPlace
    {
        Kind section = Kind::Pinned;
        std::optional<size_t> card;
    };

    NoteSections();

    /// The order within a section, which is also the store's.
    [[nodiscard]] static bool before(const Entry &a, const Entry &b);

    [[nodiscard]] Section &section(Kind kind) { return m_sections.at(static_cast<size_t>(kind)); }
    [[nodiscard]] const Section &section(Kind kind) const { return m_sections.at(static_cast<size_t>(kind)); }

    [[nodiscard]] int rowCount() const;
    /// `row` is at least 0 and less than `rowCount`.
    [[nodiscard]] RowPlace place(int row) const;
    /// The row of a section's header, or the one that it would have.
    [[nodiscard]] int headerRow(Kind kind) const;
    /// The row of a card, or the one that a card put there would have; the section is not collapsed.
    [[nodiscard]] int cardRow(Kind kind, size_t card) const;
    /// Where an entry stands, or would stand, in its section.
    [[nodiscard]] size_t position(Kind kind, const Entry &entry) const;

    /// Where the note with this identity stands, in a collapsed section too.
    [[nodiscard]] std::optional<CardPlace> find(const RecordId &id) const;
    [[nodiscard]] Note &note(const CardPlace &place) const;

    // The cards of all sections that are not collapsed, in order.
    [[nodiscard]] int visibleCount() const;
    [[nodiscard]] Note &visibleAt(int index) const;
    [[nodiscard]] std::optional<int> visibleIndex(const RecordId &id) const;

private:
    std::array<Section, kCount> m_sections;
};

inline constexpr std::array kNoteSections{NoteSections::Kind::Pinned, NoteSections::Kind::Today,
                                          NoteSections::Kind::Earlier};

} // namespace vesk
