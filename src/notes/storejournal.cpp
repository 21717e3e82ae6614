// SPDX-License-Identifier: MIT
#include "notes/storejournal.h"

#include "notes/schema.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>

#include <string>

namespace vesk::storejournal {

void prepare(SQLite::Database &connection, Kind kind)
{
    // With exclusive locking, a connection keeps the log's index in its own memory.
    if (kind == Kind::Rollback)
        connection.exec("PRAGMA locking_mode = EXCLUSIVE");
}

void settle(SQLite::Database &connection, Kind kind)
{
    if (kind == Kind::WriteAheadLog
        && connection.execAndGet("PRAGMA journal_mode = WAL").getString() == "wal") {
        connection.exec("PRAGMA synchronous = FULL");
        // The first access is what needs shared memory.
        static_cast<void>(schema::version(connection));
        return;
    }
    connection.exec("PRAGMA journal_mode = DELETE");
    // EXTRA also syncs the folder: the journal's removal must survive a power failure.
    connection.exec("PRAGMA synchronous = EXTRA");
    connection.exec("PRAGMA locking_mode = NORMAL");
    // The lock is released with the next access, so that others can read alongside this program.
    static_cast<void>(schema::version(connection));
}

} // namespace vesk::storejournal
