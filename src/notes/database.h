// SPDX-License-Identifier: MIT
#pragma once

#include "notes/notetable.h"
#include "notes/pendingchanges.h"
#include "notes/prompttable.h"
#include "notes/storefile.h"
#include "notes/storejournal.h"
#include "notes/storelock.h"
#include "notes/storeplace.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>

#include <QCoreApplication>

#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace vesk {

/// The store's file while it is open. Owned by the store, the only class that uses it. No SQLite exception
/// escapes.
class Database final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::Database)

public:
    /// Either an open database with its contents, or the reason why it could not be opened.
    struct OpenResult
    {
        std::unique_ptr<Database> database;
        std::vector<Note::Fields> notes;
        std::vector<Prompt::Fields> prompts;
        StoreError error;
    };

    struct Removal
    {
        RecordKind kind;
        RecordId id;
    };
    /// A record to be written in its current state, or one to be removed.
    using Change = std::variant<const Note *, const Prompt *, Removal>;

    /// The result of writing changes.
    struct Written
    {
        /// False if none of them reached the file.
        bool isCommitted = false;
        /// The indexes of the changes that were left out because they could not be written.
        std::vector<size_t> refused = {};
        /// What went wrong, if anything did.
        std::optional<StoreTrouble> trouble = {};
    };

    /// See `NotesStore::open`.
    [[nodiscard]] static OpenResult open(const QString &path, StoreLock::Use use,
                                         std::chrono::milliseconds patience);

    /// Makes all changes in order, in one transaction, and returns once they are on the disk. A record that
    /// cannot be written does not hold up the others. If the transaction fails, the file is unchanged.
    [[nodiscard]] Written write(const std::vector<Change> &changes);

    /// Whether the file was deleted, moved away or replaced while it was open. False if that cannot be
    /// determined, for example because the disk was removed.
    [[nodiscard]] bool isLost() const;
    /// A database that replaces a lost one, with one sentence for the user about what happened; or the reason
    /// why there is none.
    struct Anew
    {
        std::unique_ptr<Database> database;
        QString incident;
        StoreTrouble trouble;
    };
    /// Writes `records`, which must be all of them, to a new store in place of the lost file, or beside it if
    /// a foreign file is there now. On failure this database is unchanged; otherwise it must no longer be
    /// used.
    [[nodiscard]] Anew writeAnew(const std::vector<Change> &records);

private:
    Database(const StoreFile &file, storejournal::Kind journal);

    /// Reads everything using one kind of journal, and takes over `lock`. Returns null on failure, with the
    /// reason in `result` and, if SQLite reported it, in `trouble`.
    [[nodiscard]] static std::unique_ptr<Database> tryOpening(const StoreFile &file,
                                                              std::unique_ptr<StoreLock> &lock,
                                                              storejournal::Kind journal, OpenResult &result,
                                                              StoreTrouble &trouble);
    /// Whether closing may move the journal into the file.
    void setCheckpointOnClose(bool isAllowed);
    /// Reads everything after making sure that the file can be written. Returns why the file is refused, or
    /// an empty error.
    [[nodiscard]] StoreError load(const StoreFile &file, storejournal::Kind journal, OpenResult &result);
    /// Makes the changes in the open transaction. With `isApart`, each has a savepoint of its own, and those
    /// that are refused are left out; otherwise the first refused change throws.
    void makeAll(const std::vector<Change> &changes, bool isApart, Written &written);
    void make(const Note *note) { m_notes->write(*note); }
    void make(const Prompt *prompt) { m_prompts->write(*prompt); }
    void make(const Removal &removal);
    [[nodiscard]] Written writeInOneTransaction(const std::vector<Change> &changes, bool isApart);
    [[nodiscard]] StoreTrouble troubleOf(const SQLite::Exception &error);
    /// Takes the lock again if its file was removed, because a lock on a removed file excludes nobody.
    [[nodiscard]] std::optional<StoreTrouble> renewLock();
    /// Makes sure that no journal is left that could change the next file of this name, or a file that was
    /// copied over this one. If the file is still ours, the journal's changes are moved into it.
    [[nodiscard]] std::optional<StoreTrouble> emptyJournal(StorePlace::Finding finding);
    /// Records the file's current state as written by this program.
    void rememberFile();
    [[nodiscard]] static std::optional<StoreTrouble> fill(const StoreFile &file,
                                                          const std::vector<Change> &records);

    const StoreFile m_file;
    const storejournal::Kind m_journal;
    // Released after the file is closed.
    std::unique_ptr<StoreLock> m_lock;
    SQLite::Database m_connection;
    // Created after the connection, so that both refer to the same file.
    StorePlace m_place;
    std::optional<StorePlace> m_journalPlace;
    // Prepared once the tables are known to exist.
    std::unique_ptr<NoteTable> m_notes;
    std::unique_ptr<PromptTable> m_prompts;
    /// Whether the last transaction failed. Its pages may still be in the journal.
    bool m_hasFailed = false;
};

} // namespace vesk
