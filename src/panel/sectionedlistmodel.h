// SPDX-License-Identifier: MIT
#pragma once

#include "panel/listsections.h"

#include <QAbstractListModel>
#include <QQmlEngine>

namespace vesk {

class Defaults;

/// Records in sections, as the rows of one flat list: headers and cards. Content changes in the smallest
/// possible steps, never by a reset, so that a view keeps its position and its remaining cards.
class SectionedListModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the lists.")
    /// True if there are no rows at all: there are no records, or none matches.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged)
    /// The rows have just been exchanged in bulk, or by a search, which a view does not animate.
    Q_PROPERTY(bool isSweeping READ isSweeping NOTIFY isSweepingChanged)

public:
    enum Role {
        /// bool: whether the row is a section's header rather than a card.
        IsHeaderRole = Qt::UserRole + 1,
        // Of a header.
        SectionTitleRole, ///< QString
        SectionCountRole, ///< int
        CollapsedRole,    ///< bool
        // Of a card.
        CardIdRole, ///< QString, the record's identity
        FirstCardRole,
    };

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Collapses or expands a section, and remembers that. `row` is its header's.
    Q_INVOKABLE void toggleSection(int row);
    /// The row of a card; -1 if it is not shown.
    [[nodiscard]] Q_INVOKABLE int rowOf(const QString &cardId) const;

    // The records that the arrow keys can reach, in order.
    [[nodiscard]] int visibleCount() const { return m_sections.visibleCount(); }
    [[nodiscard]] const RecordId &visibleAt(int index) const { return m_sections.visibleAt(index); }
    [[nodiscard]] std::optional<int> visibleIndex(const RecordId &id) const
    {
        return m_sections.visibleIndex(id);
    }

    [[nodiscard]] bool isEmpty() const { return m_sections.rowCount() == 0; }
    [[nodiscard]] bool isSweeping() const { return m_isSweeping; }

Q_SIGNALS:
    void isEmptyChanged();
    void isSweepingChanged();
    /// The rows are the results of another search.
    void searched();

protected:
    using Entry = ListSections::Entry;
    using CardPlace = ListSections::CardPlace;
    /// The entries of each section, in order.
    using Grouped = std::vector<ListSections::Entries>;
    /// Whether a view may animate rows that come and go. Search results must appear at once.
    enum class Regroup {
        InSight,
        AtOnce
    };

    SectionedListModel(std::vector<ListSections::Section> sections, Defaults &defaults, QObject *parent);

    /// A card's data for a role from `FirstCardRole` on. A null `id` stands for a header, for which views
    /// expect an empty value of the role's type.
    [[nodiscard]] virtual QVariant cardData(const RecordId *id, int role) const = 0;

    /// Fills the empty list at the start, before any view uses it.
    void load(Grouped entries);

    // Each of these notifies the views of its change.
    void place(size_t section, const Entry &entry);
    void take(const CardPlace &place);
    /// Moves a card, or leaves it where it is if the position is the same. `roles` are those that may have
    /// changed; empty for all.
    void moveTo(const CardPlace &from, size_t section, Date date, const QList<int> &roles = {});
    void regroup(const Grouped &wanted, Regroup how = Regroup::InSight);
    /// Regroups in place: rows are reused for other cards, so the view need not create delegates. Not for
    /// cards that have state in the view.
    void exchange(const Grouped &wanted);
    void rowsChanged(const QList<int> &roles);
    void setSweeping(bool isSweeping);

    [[nodiscard]] const ListSections &sections() const { return m_sections; }

private:
    void insertCards(const CardPlace &at, const ListSections::Entries &entries);
    void removeCards(const CardPlace &at, size_t count);
    void exchangeCards(size_t index, const ListSections::Entries &wanted);
    void showHeader(size_t index);
    void hideHeaderIfEmpty(size_t index);
    void headerChanged(size_t section);

    Defaults &m_defaults;
    ListSections m_sections;
    bool m_isSweeping = false;
};

} // namespace vesk
