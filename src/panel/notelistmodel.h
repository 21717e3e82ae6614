// SPDX-License-Identifier: MIT
#pragma once

#include "panel/foldedtexts.h"
#include "panel/relativetime.h"
#include "panel/sectionedlistmodel.h"

#include <QCoroTask>

#include <QPointer>
#include <QTimer>

#include <unordered_map>
#include <unordered_set>

namespace vesk {

class Clock;
class Note;
class NotesStore;

/// The notes that the panel lists on its tabs for notes and checklists: pinned, today's, and earlier. Follows
/// the store, the search text and the calendar. Owned by the panel's model. The base class is fully qualified
/// for the tools that read what QML sees.
class NoteListModel final : public vesk::SectionedListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The panel's model has the one list.")
    /// The number of all notes, regardless of the search.
    Q_PROPERTY(int noteCount READ noteCount NOTIFY countsChanged)
    /// The number of notes with a checkbox.
    Q_PROPERTY(int checklistCount READ checklistCount NOTIFY countsChanged)

public:
    enum class Scope {
        AllNotes,
        /// Only notes with at least one checkbox.
        Checklists,
    };

    /// The roles of a card, besides those of every list.
    enum NoteRole {
        TextRole = FirstCardRole, ///< QString, the whole text
        TitleRole,                ///< QString
        PreviewRole,              ///< QString; empty for a checklist
        SpokenRole,               ///< QString, what a screen reader says besides the title
        ItemTextsRole,            ///< QStringList, the checkboxes that are shown
        ItemsDoneRole,            ///< QList<bool>, for each of them
        ItemsRightToLeftRole,     ///< QList<bool>, for each of them
        ItemLinesRole,            ///< QList<int>, for each of them
        FurtherItemsRole,         ///< int, the number of checkboxes not shown
        DoneRole,                 ///< int, counting all checkboxes
        TotalRole,                ///< int; 0 if the note is not a checklist
        TimeRole,                 ///< QString, how long ago it was changed
        SourceRole,               ///< QString, an application's name; empty if there is none
        SourceBundleRole,         ///< QString; empty if there is none
        SourceLabelRole, ///< QString, the label of the button to the source; empty if there is no source
        SourceTipRole,   ///< QString, what that button opens
        PinnedRole,      ///< bool
    };

    NoteListModel(NotesStore &store, Clock &clock, Defaults &defaults, QObject *parent = nullptr);

    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    void setScope(Scope scope);
    /// Shows only notes that contain the query in their text or in their source's name.
    void setQuery(const QString &query);
    /// While shown, the times are kept up to date and a new day is noticed.
    void setShown(bool isShown);
    /// While a note is open, every note keeps the position that it had when the note was opened, and the open
    /// one stays in the list whatever is written in it. nullopt if no note is open.
    void setOpenNote(const std::optional<RecordId> &id);

    /// The date by which a note is sorted.
    [[nodiscard]] Date sortDate(const Note &note) const;
    [[nodiscard]] int noteCount() const;
    [[nodiscard]] int checklistCount() const { return static_cast<int>(m_checklists.size()); }

Q_SIGNALS:
    void countsChanged();

protected:
    [[nodiscard]] QVariant cardData(const RecordId *id, int role) const override;

private:
    static QCoro::Task<> refreshWhileShown(QPointer<NoteListModel> self, Clock *clock, quint64 show);

    [[nodiscard]] bool matches(const Note &note);
    /// Does not look the note up if its text has already been folded.
    [[nodiscard]] bool matches(const RecordId &id);
    [[nodiscard]] bool isInScope(const RecordId &id) const;
    [[nodiscard]] size_t sectionOf(const Note &note) const;
    [[nodiscard]] Entry entryOf(const Note &note) const;
    [[nodiscard]] Grouped grouped();
    [[nodiscard]] Grouped narrowed();
    bool readDay();
    void refresh();
    /// Moves the notes that have changed while one was open to the positions of their dates.
    void thaw(const RecordId &closed);
    void foldAhead();

    void noteInserted(const Note &note);
    void noteRemoved(const RecordId &id);
    void noteChanged(const Note &note);
    void follow(const Note &note);

    NotesStore &m_store;
    Clock &m_clock;
    RelativeTime m_relativeTime;
    FoldedTexts m_folded;
    Scope m_scope = Scope::AllNotes;
    QString m_query;
    QByteArray m_foldedQuery;
    std::unordered_set<RecordId, RecordIdHash> m_checklists;
    std::optional<RecordId> m_openNote;
    /// Of all notes that existed when the open one was opened.
    std::unordered_map<RecordId, Date, RecordIdHash> m_frozenDates;
    /// The user's current day: from its first moment up to the start of the next.
    Date m_dayStart{};
    Date m_dayEnd{};
    quint64 m_shows = 0;
    bool m_isShown = false;
    QTimer m_foldingAhead;
    qsizetype m_foldedAhead = 0;
};

} // namespace vesk
