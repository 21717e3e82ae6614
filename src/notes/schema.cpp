// SPDX-License-Identifier: MIT
#include "notes/schema.h"

#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>

#include <array>
#include <string>

namespace vesk::schema {

namespace {

/// Step n migrates from version n to version n + 1. Never change a step that has been released.
constexpr std::array<const char *, kVersion> kSteps{
    // Dates are microseconds since 1970 UTC; an id is a UUID without braces.
    R"(
        CREATE TABLE Note (
            id TEXT NOT NULL PRIMARY KEY,
            text TEXT NOT NULL,
            createdAt INTEGER NOT NULL,
            updatedAt INTEGER NOT NULL,
            isPinned INTEGER NOT NULL,
            sourceApp TEXT,
            sourceBundleID TEXT,
            sourceTitle TEXT,
            sourceURL TEXT
        ) STRICT;
        CREATE TABLE Prompt (
            id TEXT NOT NULL PRIMARY KEY,
            text TEXT NOT NULL,
            isDone INTEGER NOT NULL,
            createdAt INTEGER NOT NULL,
            isCaptured INTEGER NOT NULL
        ) STRICT;
    )",
};

} // namespace

int applicationId(SQLite::Database &connection)
{
    return connection.execAndGet("PRAGMA application_id").getInt();
}

int version(SQLite::Database &connection)
{
    return connection.execAndGet("PRAGMA user_version").getInt();
}

void migrate(SQLite::Database &connection)
{
    const int found = version(connection);
    if (found == kVersion)
        return;
    for (int step = found; step < kVersion; ++step)
        connection.exec(kSteps.at(static_cast<size_t>(step)));
    connection.exec("PRAGMA application_id = " + std::to_string(kApplicationId));
    connection.exec("PRAGMA user_version = " + std::to_string(kVersion));
}

int64_t countRecords(SQLite::Database &connection)
{
    return connection.execAndGet("SELECT (SELECT COUNT(*) FROM Note) + (SELECT COUNT(*) FROM Prompt)")
        .getInt64();
}

void touch(SQLite::Database &connection)
{
    connection.exec("PRAGMA user_version = " + std::to_string(kVersion));
}

} // namespace vesk::schema
