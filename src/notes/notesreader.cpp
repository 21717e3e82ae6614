// SPDX-License-Identifier: MIT
#include "notes/notesreader.h"

#include "notes/notetable.h"
#include "notes/schema.h"
#include "notes/storefile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <utility>

namespace vesk {

namespace {

/// How long a moment in which the file is locked, at the start or end of a writer, is waited out.
constexpr int kBusyTimeoutMilliseconds = 1000;

enum class Way {
    /// Beside whoever writes. The first to open a store makes its journal, which takes space.
    Shared,
    /// With the journal's index in memory. Fails if the store is open elsewhere.
    Alone,
    /// Without a journal, which must be empty.
    FileOnly,
};

NotesReading tryReading(const StoreFile &file, Way way)
{
    NotesReading reading;
    try {
        const bool isFileOnly = way == Way::FileOnly;
        // Not read-only: the last to close a journalled file tidies its companions away, and may be this.
        SQLite::Database connection(isFileOnly ? file.immutableAddress() : file.nativePath(),
                                    isFileOnly ? SQLite::OPEN_READONLY | SQLite::OPEN_URI
                                               : SQLite::OPEN_READWRITE,
                                    kBusyTimeoutMilliseconds);
        // Moving the journal into the file is left to the writer. If there was none, closing removes the
        // empty one that opening makes.
        sqlite3_db_config(connection.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, file.hasJournal() ? 1 : 0,
                          nullptr);
        connection.exec("PRAGMA query_only = ON");
        if (way == Way::Alone)
            connection.exec("PRAGMA locking_mode = EXCLUSIVE");
        const SQLite::Transaction snapshot(connection, SQLite::TransactionBehavior::DEFERRED);
        const int version = schema::version(connection);
        if (version > schema::kVersion)
            reading.error = file.newerVersion(version);
        else
            reading.notes = NoteTable(connection).load();
    } catch (const SQLite::Exception &error) {
        reading.error = file.describe(StoreTrouble::of(error.getExtendedErrorCode(),
                                                       QString::fromUtf8(error.what()), 0, file.folder()));
    }
    return reading;
}

} // namespace

NotesReading readNotes(const QString &path)
{
    const StoreFile file(path);
    NotesReading reading{.error = file.obstacle(StoreFile::Access::Read)};
    if (!reading.error.isEmpty() || file.isEmpty())
        return reading;
    reading.error = file.contentsObstacle();
    if (!reading.error.isEmpty())
        return reading;
    reading = tryReading(file, Way::Shared);
    if (reading.error.isEmpty() || reading.error.fault != StoreFault::Other)
        return reading;
    // The disk may be full or read-only, and what is on it can be read all the same.
    NotesReading other = tryReading(file, file.isUnsettled() ? Way::Alone : Way::FileOnly);
    return other.error.isEmpty() ? std::move(other) : std::move(reading);
}

} // namespace vesk
