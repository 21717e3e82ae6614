// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace SQLite {
class Database;
}

/// The tables of the store's file, their version, and the migration from older versions. Internal to this
/// layer; everything here throws whatever SQLiteCpp throws.
namespace vesk::schema {

/// Marks a file as a Vesk store, whatever its name: "Vesk" in ASCII.
inline constexpr int kApplicationId = 0x5665736B;
/// The version that this program reads and writes.
inline constexpr int kVersion = 1;

/// 0 if the file has none.
[[nodiscard]] int applicationId(SQLite::Database &connection);
/// 0 for a file without tables.
[[nodiscard]] int version(SQLite::Database &connection);

/// Migrates a file of an older version to `kVersion`, step by step. Must be called within a transaction.
void migrate(SQLite::Database &connection);

/// The number of notes and prompts.
[[nodiscard]] int64_t countRecords(SQLite::Database &connection);

/// Makes the transaction write a page without changing anything.
void touch(SQLite::Database &connection);

} // namespace vesk::schema
