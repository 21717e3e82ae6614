// SPDX-License-Identifier: MIT
#include "notes/notesreader.h"

#include "notes/notetable.h"
#include "notes/schema.h"
#include "notes/storefile.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

namespace vesk {

namespace {

/// How long a moment in which the file is locked, at the start or end of a writer, is waited out.
constexpr int kBusyTimeoutMilliseconds = 1000;

} // namespace

NotesReading readNotes(const QString &path)
{
    const StoreFile file(path);
    NotesReading reading{.error = file.obstacle()};
    if (!reading.error.isEmpty() || file.isEmpty())
        return reading;
    reading.error = file.contentsObstacle();
    if (!reading.error.isEmpty())
        return reading;
    try {
        // Not read-only: the last to close a journalled file tidies its companions away, and may be this.
        SQLite::Database connection(file.nativePath(), SQLite::OPEN_READWRITE, kBusyTimeoutMilliseconds);
        // Moving the journal into the file is left to the writer.
        sqlite3_db_config(connection.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
        connection.exec("PRAGMA query_only = ON");
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

} // namespace vesk
