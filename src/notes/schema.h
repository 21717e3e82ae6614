// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace SQLite {
class Database;
}

/// The tables of the store's file, their version, and the way from an older version to this one.
/// Internal to this layer; everything here throws what SQLiteCpp throws.
namespace vesk::schema {

/// Marks a file as a store of Vesk, whatever it is called: "Vesk" in ASCII.
inline constexpr int kApplicationId = 0x5665736B;
/// The version that this program reads and writes.
inline constexpr int kVersion = 1;

/// 0 if the file has none.
[[nodiscard]] int applicationId(SQLite::Database &connection);
/// 0 for a file without tables.
[[nodiscard]] int version(SQLite::Database &connection);

/// Brings a file of an older version to `kVersion`, step by step. Has to be called in a transaction.
void migrate(SQLite::Database &connection);

/// How many notes and prompts there are.
[[nodiscard]] int64_t countRecords(SQLite::Database &connection);

/// Has the transaction write a page, and changes nothing.
void touch(SQLite::Database &connection);

} // namespace vesk::schema
