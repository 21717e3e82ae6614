// SPDX-License-Identifier: MIT
#pragma once

namespace SQLite {
class Database;
}

/// How SQLite protects a change until it is in the file. Internal to this layer; everything here throws
/// whatever SQLiteCpp throws.
namespace vesk::storejournal {

enum class Kind {
    /// A write-ahead log: one sync per change, and readers can work alongside the writer. Its index is in
    /// memory shared by all processes, which not every file system supports and which never works across
    /// machines.
    WriteAheadLog,
    /// A rollback journal: slower, but works on every file system.
    Rollback,
};

/// Must be called before anything is read. Unless `kind` is a write-ahead log, a file last used with one is
/// then read without shared memory.
void prepare(SQLite::Database &connection, Kind kind);

/// Makes the connection use `kind` from now on, or a rollback journal if SQLite answers that it cannot. Every
/// transaction is on the disk once it is committed.
void settle(SQLite::Database &connection, Kind kind);

} // namespace vesk::storejournal
