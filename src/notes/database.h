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

/// The store's file while it is open. Owned by the store, which alone knows of it; no exception of
/// SQLite's leaves it.
class Database final
{
    Q_DECLARE_TR_FUNCTIONS(vesk::Database)

public:
    /// Either an open database with all that it held, or the reason why there is none.
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
    /// A record to be written as it is now, or one to be removed.
    using Change = std::variant<const Note *, const Prompt *, Removal>;

    /// What became of changes.
    struct Written
    {
        /// False if none of them is in the file.
        bool isCommitted = false;
        /// The places in the list of those that alone could not be made.
        std::vector<size_t> refused = {};
        /// What went wrong, if anything did.
        std::optional<StoreTrouble> trouble = {};
    };

    /// See `NotesStore::open`.
    [[nodiscard]] static OpenResult open(const QString &path, StoreLock::Use use,
                                         std::chrono::milliseconds patience);

    /// Makes all changes, in their order, in one transaction; returns once they are on the disk. A record
    /// that cannot be written does not keep the others from it. If the whole fails, the file is as it was.
    [[nodiscard]] Written write(const std::vector<Change> &changes);

    /// Whether the file was deleted, moved away or replaced while it was open. False if that cannot be found
    /// out, as when its disk was taken away.
    [[nodiscard]] bool isLost() const;
    /// A database in place of one that is lost, and what happened, in one sentence for the user; or the
    /// reason why there is none.
    struct Anew
    {
        std::unique_ptr<Database> database;
        QString incident;
        StoreTrouble trouble;
    };
    /// Makes a new store of `records`, which must be all of them, in the place of the lost file, or beside a
    /// foreign one that is there now. If it fails, this one is as it was; otherwise it is of no use any more.
    [[nodiscard]] Anew writeAnew(const std::vector<Change> &records);

private:
    Database(const StoreFile &file, storejournal::Kind journal);

    /// Reads everything with one kind of journal, and takes `lock` over. Null if that fails, with why in
    /// `result`, and in `trouble` where SQLite said so.
    [[nodiscard]] static std::unique_ptr<Database> tryOpening(const StoreFile &file,
                                                              std::unique_ptr<StoreLock> &lock,
                                                              storejournal::Kind journal, OpenResult &result,
                                                              StoreTrouble &trouble);
    /// Whether closing may move the journal into the file.
    void setCheckpointOnClose(bool isAllowed);
    /// Reads everything, having made sure that the file can be written. Returns why the file is
    /// refused, or nothing.
    [[nodiscard]] StoreError load(const StoreFile &file, storejournal::Kind journal, OpenResult &result);
    /// Makes the changes in the open transaction. With `isApart` each in a savepoint of its own, which
    /// leaves out those that are refused; otherwise the first of these throws.
    void makeAll(const std::vector<Change> &changes, bool isApart, Written &written);
    void make(const Note *note) { m_notes->write(*note); }
    void make(const Prompt *prompt) { m_prompts->write(*prompt); }
    void make(const Removal &removal);
    [[nodiscard]] Written writeInOneTransaction(const std::vector<Change> &changes, bool isApart);
    [[nodiscard]] StoreTrouble troubleOf(const SQLite::Exception &error);
    /// Locks anew if the lock's file was removed, from when on it binds nobody.
    [[nodiscard]] std::optional<StoreTrouble> renewLock();
    /// Leaves no journal by which the next file of the name, or one that was copied over this one, could be
    /// changed. Where the file is still this program's, it gets what is in the journal.
    [[nodiscard]] std::optional<StoreTrouble> emptyJournal(StorePlace::Finding finding);
    /// Takes the file for this program's own, as it is now.
    void rememberFile();
    [[nodiscard]] static std::optional<StoreTrouble> fill(const StoreFile &file,
                                                          const std::vector<Change> &records);

    const StoreFile m_file;
    const storejournal::Kind m_journal;
    // Given up after the file is closed.
    std::unique_ptr<StoreLock> m_lock;
    SQLite::Database m_connection;
    // Made after the connection, so that it is the same file.
    StorePlace m_place;
    std::optional<StorePlace> m_journalPlace;
    // Prepared once the tables are known to be there.
    std::unique_ptr<NoteTable> m_notes;
    std::unique_ptr<PromptTable> m_prompts;
    /// Whether the last transaction failed. Its pages may stand in the journal all the same.
    bool m_hasFailed = false;
};

} // namespace vesk
