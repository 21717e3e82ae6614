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

/// All notes and prompts: in memory, one object per identity, and in a file. Changes are taken at
/// once and written by the next `save`.
class NotesStore final : public QObject, private RecordObserver
{
    Q_OBJECT

public:
    /// Either a store or the reason why there is none.
    struct OpenResult
    {
        std::unique_ptr<NotesStore> store;
        QString error = {};
        StoreFault fault = StoreFault::None;
    };

    /// For how long a store is opened.
    enum class Use {
        /// Until the user quits.
        Session,
        /// For one command.
        Command,
    };

    /// Where a user's store is: `Vesk/Notes.store` in the user's data folder.
    [[nodiscard]] static QString standardPath();

    /// Opens the store's file, or makes it and its folder if it is missing, readable by its user
    /// only. A file that cannot be used (not a store, damaged, of a newer version, not writable,
    /// locked) is left as it was, and one that is missing or empty although there are copies of it is not
    /// made anew. While the store is open no other process can open it; one that has it open at the moment
    /// is waited for up to `patience`. `clock` must outlive the store.
    [[nodiscard]] static OpenResult open(const QString &path, Clock &clock, Use use = Use::Session,
                                         std::chrono::milliseconds patience = {});
    /// Tries once more to write what is pending.
    ~NotesStore() override;

    /// Takes a new record over; it is durable only after `save`.
    Note &insert(std::unique_ptr<Note> note);
    Prompt &insert(std::unique_ptr<Prompt> prompt);
    /// Takes the record out and deletes it. Live queries tell of it before it is gone.
    void remove(Note &note);
    void remove(Prompt &prompt);

    /// Writes everything pending, and returns once it is on the disk. False if a change since the last
    /// save is not: nothing is lost, it stays pending in its order, `problem` says why, and the store tries
    /// again by itself. A record that cannot be written does not keep the others from it. If the file was
    /// lost meanwhile, everything is written to a new one, and `incident` says so.
    [[nodiscard]] bool save();
    [[nodiscard]] bool hasPendingChanges() const;
    /// The texts that the file has not got as they are now, in the order in which they changed first.
    [[nodiscard]] QStringList unwrittenTexts() const;
    /// Why something is not written, in one sentence for the user; empty if the last attempt succeeded.
    [[nodiscard]] const QString &problem() const { return m_problem; }
    /// What has happened to the file that the user should know although all is written, in a sentence or two:
    /// it was lost while it was open, or notes from such a time lie beside it. Empty if nothing has.
    [[nodiscard]] const QString &incident() const { return m_incident; }

    /// Null if there is no record of that kind with this identity.
    [[nodiscard]] Note *findNote(const RecordId &id) const;
    [[nodiscard]] Prompt *findPrompt(const RecordId &id) const;

    /// By `updatedAt`, newest first.
    [[nodiscard]] LiveQuery<Note> &notes() { return m_notes; }
    /// By `createdAt`, newest first.
    [[nodiscard]] LiveQuery<Prompt> &prompts() { return m_prompts; }

    /// Prompts that are done, in no order.
    [[nodiscard]] QList<Prompt *> donePrompts() const;

Q_SIGNALS:
    /// `problem` or `incident` has changed.
    void problemChanged();
    /// An attempt to save has ended, by whomever it was made and however it went.
    void saveTried();

private:
    /// A record with the date under which the live query has it.
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
    /// Puts a record on its shelf; `key` is the date that its live query goes by.
    template <typename Record>
    Record &hold(Shelf<Record> &shelf, std::unique_ptr<Record> record, Date (Record::*key)() const);
    /// Takes it down again.
    template <typename Record>
    [[nodiscard]] Held<Record> take(Shelf<Record> &shelf, Record &record);

    /// Tries once; see `save`.
    [[nodiscard]] bool write();
    /// Tries once to bring everything into a new file, after the file was lost.
    [[nodiscard]] bool writeAnew();
    void setProblem(const QString &problem);
    /// Begins to try again by itself, unless it already does.
    void startRetrying();
    /// Tries until nothing is pending or `round` is no longer the current one. The store may die
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
