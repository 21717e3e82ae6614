// SPDX-License-Identifier: MIT
#pragma once

#include "notes/livequery.h"
#include "notes/note.h"
#include "notes/pendingchanges.h"
#include "notes/prompt.h"
#include "notes/record.h"
#include "notes/storeerror.h"
#include "platform/clock.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>
#include <unordered_map>
#include <vector>

namespace vesk {

class Database;

/// All notes and prompts: in memory, one object per identity, and in a file. Changes take effect at once and
/// are written by the next `save`.
class NotesStore final : public QObject, private RecordObserver
{
    Q_OBJECT

public:
    /// Either a store or the reason why it could not be opened.
    struct OpenResult
    {
        std::unique_ptr<NotesStore> store;
        QString error = {};
        StoreFault fault = StoreFault::None;
    };

    /// How long the store will stay open.
    enum class Use {
        /// Until the user quits.
        Session,
        /// For one command.
        Command,
    };

    /// The location of a user's store: `Vesk/Notes.store` in the user's data folder.
    [[nodiscard]] static QString standardPath();

    /// Opens the store's file. If it is missing, creates it and its folder, readable only by the user. A file
    /// that cannot be used (not a store, damaged, of a newer version, not writable, locked) is left
    /// unchanged, and one that is missing or empty although copies of it exist is not created anew. While the
    /// store is open no other process can open it; if another process has it open now, waits for up to
    /// `patience`. `clock` must outlive the store.
    [[nodiscard]] static OpenResult open(const QString &path, Clock &clock, Use use = Use::Session,
                                         std::chrono::milliseconds patience = {});
    /// Tries once more to write pending changes.
    ~NotesStore() override;

    /// Takes over a new record; it is durable only after `save`.
    Note &insert(std::unique_ptr<Note> note);
    Prompt &insert(std::unique_ptr<Prompt> prompt);
    /// Removes the record and deletes it. Live queries report it before it is deleted.
    void remove(Note &note);
    void remove(Prompt &prompt);

    /// Writes all pending changes and returns once they are on the disk. Returns false if any change since
    /// the last save is not on the disk: nothing is lost, the changes stay pending in order, `problem` says
    /// why, and the store retries on its own. A record that cannot be written does not hold up the others. If
    /// the file has been lost meanwhile, everything is written to a new one, and `incident` says so.
    [[nodiscard]] bool save();
    [[nodiscard]] bool hasPendingChanges() const;
    /// The texts whose current state is not in the file, in the order in which they first changed.
    [[nodiscard]] QStringList unwrittenTexts() const;
    /// Why something could not be written, as one sentence for the user; empty if the last attempt succeeded.
    [[nodiscard]] const QString &problem() const { return m_problem; }
    /// What happened to the file that the user should know even though everything is written, in a sentence
    /// or two: the file was lost while it was open, or notes from such an incident lie beside it. Empty if
    /// nothing happened.
    [[nodiscard]] const QString &incident() const { return m_incident; }

    /// Null if there is no record of that kind with this identity.
    [[nodiscard]] Note *findNote(const RecordId &id) const;
    [[nodiscard]] Prompt *findPrompt(const RecordId &id) const;

    /// Ordered by `updatedAt`, newest first.
    [[nodiscard]] LiveQuery<Note> &notes() { return m_notes; }
    /// Ordered by `createdAt`, newest first.
    [[nodiscard]] LiveQuery<Prompt> &prompts() { return m_prompts; }

    /// The prompts that are done, in no particular order.
    [[nodiscard]] QList<Prompt *> donePrompts() const;

Q_SIGNALS:
    /// `problem` or `incident` has changed.
    void problemChanged();
    /// An attempt to save has ended, whoever made it and whether or not it succeeded.
    void saveTried();

private:
    /// A record with the date by which the live query currently sorts it.
    template <typename Record>
    struct Held
    {
        std::unique_ptr<Record> record;
        Date date;
    };
    template <typename Record>
    using Shelf = std::unordered_map<RecordId, Held<Record>, RecordIdHash>;

    NotesStore(std::unique_ptr<Database> database, Clock &clock);

    void noteChanged(Note &note) override;
    void promptChanged(Prompt &prompt) override;

    void load(std::vector<Note::Fields> notes, std::vector<Prompt::Fields> prompts);
    /// Adds a record to its shelf; `key` is the date that its live query sorts by.
    template <typename Record>
    Record &hold(Shelf<Record> &shelf, std::unique_ptr<Record> record, Date (Record::*key)() const);
    /// Removes it from its shelf.
    template <typename Record>
    [[nodiscard]] Held<Record> take(Shelf<Record> &shelf, Record &record);

    /// Tries once; see `save`.
    [[nodiscard]] bool write();
    /// Tries once to write everything to a new file after the file was lost.
    [[nodiscard]] bool writeAnew();
    void setProblem(const QString &problem);
    /// Starts retrying, unless it is already doing so.
    void startRetrying();
    /// Retries until nothing is pending or `round` is no longer current. The store may be destroyed
    /// meanwhile.
    static QCoro::Task<> retry(QPointer<NotesStore> store, Clock *clock, quint64 round);

    std::unique_ptr<Database> m_database;
    Clock &m_clock;
    Shelf<Note> m_heldNotes;
    Shelf<Prompt> m_heldPrompts;
    LiveQuery<Note> m_notes{&Note::updatedAt};
    LiveQuery<Prompt> m_prompts{&Prompt::createdAt};
    PendingChanges m_pending;
    QString m_problem;
    QString m_incident;
    bool m_isRetrying = false;
    quint64 m_retryRound = 0;
};

} // namespace vesk
