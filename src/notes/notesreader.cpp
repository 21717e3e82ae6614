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

/// How long to wait while a writer that is starting or ending has the file locked.
constexpr int kBusyTimeoutMilliseconds = 1000;

enum class Way {
    /// Alongside the writer. The first connection to a store creates its journal, which takes disk space.
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
        // Not read-only: the last connection to close a file with a journal removes its companion files, and
        // that may be this one.
        SQLite::Database connection(isFileOnly ? file.immutableAddress() : file.nativePath(),
                                    isFileOnly ? SQLite::OPEN_READONLY | SQLite::OPEN_URI
                                               : SQLite::OPEN_READWRITE,
                                    kBusyTimeoutMilliseconds);
        // The writer moves the journal into the file. If there was no journal, closing removes the empty one
        // that opening creates.
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
    // The disk may be full or read-only, but its contents can still be read.
    NotesReading other = tryReading(file, file.isUnsettled() ? Way::Alone : Way::FileOnly);
    return other.error.isEmpty() ? std::move(other) : std::move(reading);
}

} // namespace vesk
