// SPDX-License-Identifier: MIT
#pragma once

#include "notes/livequery.h"
#include "panel/notesections.h"
#include "panel/relativetime.h"

#include <QCoroTask>

#include <QAbstractListModel>
#include <QPointer>
#include <QQmlEngine>

namespace vesk {

class Clock;
class Defaults;
class NotesStore;

/// The notes that the panel lists, as rows: headers of sections and cards. Follows the store, the
/// search text and the folding of sections by the smallest changes, never by a reset. Owned by the
/// panel's model.
class NoteListModel final : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one list.")
    /// No row at all: there are no notes, or none matches.
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY isEmptyChanged)
    /// There are no notes in the store.
    Q_PROPERTY(bool isStoreEmpty READ isStoreEmpty NOTIFY isStoreEmptyChanged)
    /// The rows have just been exchanged in bulk; a view does not animate that.
    Q_PROPERTY(bool isSweeping READ isSweeping NOTIFY isSweepingChanged)

public:
    /// What a row tells; each role is of the row's kind only, where it says so.
    enum Role {
        /// bool: the row is a section's header, else a card.
        IsHeaderRole = Qt::UserRole + 1,
        // Of a header.
        SectionTitleRole, ///< QString
        SectionCountRole, ///< int
        CollapsedRole,    ///< bool
        // Of a card.
        NoteIdRole,       ///< QString, the identity
        TitleRole,        ///< QString
        PreviewRole,      ///< QString; empty for a checklist
        ItemTextsRole,    ///< QStringList, the checkboxes that are shown
        ItemsDoneRole,    ///< QList<bool>, for each of them
        ItemLinesRole,    ///< QList<int>, for each of them
        FurtherItemsRole, ///< int, the checkboxes that are not shown
        DoneRole,         ///< int, of all checkboxes
        TotalRole,        ///< int; 0 if the note is no checklist
        TimeRole,         ///< QString, how long ago it was changed
        SourceRole,       ///< QString, an application's name; empty if there is none
        SourceBundleRole, ///< QString; empty if there is none
        PinnedRole,       ///< bool
    };

    NoteListModel(NotesStore &store, Clock &clock, Defaults &defaults, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// Folds a section away, or brings it back, and remembers that. `row` is its header's.
    Q_INVOKABLE void toggleSection(int row);
    /// The row of a card; -1 if it is not shown.
    [[nodiscard]] Q_INVOKABLE int rowOf(const QString &noteId) const;

    /// Shows only the notes that contain the query in their text or their source's name.
    void setQuery(const QString &query);
    /// While shown, the times are kept up to date and the day may change.
    void setShown(bool isShown);

    // The notes that the arrow keys can reach, in order.
    [[nodiscard]] int visibleCount() const { return m_sections.visibleCount(); }
    [[nodiscard]] const RecordId &visibleAt(int index) const;
    [[nodiscard]] std::optional<int> visibleIndex(const RecordId &id) const
    {
        return m_sections.visibleIndex(id);
    }

    [[nodiscard]] bool isEmpty() const { return m_sections.rowCount() == 0; }
    [[nodiscard]] bool isStoreEmpty() const;
    [[nodiscard]] bool isSweeping() const { return m_isSweeping; }

Q_SIGNALS:
    void isEmptyChanged();
    void isStoreEmptyChanged();
    void isSweepingChanged();

private:
    using Kind = NoteSections::Kind;
    using Entry = NoteSections::Entry;
    using Grouped = std::array<NoteSections::Entries, NoteSections::kCount>;

    static QCoro::Task<> refreshWhileShown(QPointer<NoteListModel> self, Clock *clock, quint64 show);

    [[nodiscard]] bool matches(const Note &note) const;
    [[nodiscard]] Kind kindOf(const Note &note) const;
    [[nodiscard]] Grouped grouped() const;
    bool readDay();
    void refreshTimes();

    void noteInserted(Note &note);
    void noteRemoved(const RecordId &id);
    void noteChanged(Note &note);

    // Each of these tells the views of what it does.
    void place(Note &note);
    void take(const NoteSections::CardPlace &place);
    void moveTo(const NoteSections::CardPlace &from, Kind kind, Date date);
    void regroup(const Grouped &wanted);
    void insertCards(Kind kind, size_t at, const NoteSections::Entries &entries);
    void removeCards(Kind kind, size_t at, size_t count);
    void showHeader(Kind kind);
    void hideHeaderIfEmpty(Kind kind);
    void headerChanged(Kind kind);
    void setSweeping(bool isSweeping);

    NotesStore &m_store;
    Clock &m_clock;
    Defaults &m_defaults;
    RelativeTime m_relativeTime;
    NoteSections m_sections;
    QString m_query;
    /// The user's current day: from its first moment up to the next day's.
    Date m_dayStart{};
    Date m_dayEnd{};
    quint64 m_shows = 0;
    bool m_isShown = false;
    bool m_isSweeping = false;
};

} // namespace vesk
