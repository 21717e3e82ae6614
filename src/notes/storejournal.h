// SPDX-License-Identifier: MIT
#pragma once

namespace SQLite {
class Database;
}

/// How SQLite keeps a change safe until it is in the file. Internal to this layer; everything here throws
/// what SQLiteCpp throws.
namespace vesk::storejournal {

enum class Kind {
    /// A write-ahead log: one sync a change, and readers beside the writer. Its index is memory that all
    /// processes share, which not every file system offers and none shares between machines.
    WriteAheadLog,
    /// A rollback journal: slower, and good for every file system.
    Rollback,
};

/// Has to be called before anything is read. A file that was last used with a write-ahead log is then
/// read without shared memory if `kind` is not that.
void prepare(SQLite::Database &connection, Kind kind);

/// Has the connection use `kind` from now on, or a rollback journal where SQLite answers that it cannot.
/// Every transaction is on the disk once it is committed.
void settle(SQLite::Database &connection, Kind kind);

} // namespace vesk::storejournal
