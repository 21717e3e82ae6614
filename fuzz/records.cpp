// SPDX-License-Identifier: MIT
#include "client/noteslist.h"
#include "notes/notesreader.h"
#include "storefolder.h"

#include <fuzzer/FuzzedDataProvider.h>
#include <sqlite3.h>

using namespace vesk;

namespace {

/// Binds a value that Vesk would never write: invalid UTF-8, a blob, any number, or NULL.
void bindOdd(sqlite3_stmt *statement, int index, FuzzedDataProvider &odd)
{
    const std::string bytes = odd.ConsumeRandomLengthString(200);
    const int size = static_cast<int>(bytes.size());
    switch (odd.ConsumeIntegralInRange(0, 5)) {
    case 0:
        sqlite3_bind_null(statement, index);
        break;
    case 1:
        sqlite3_bind_int64(statement, index, odd.ConsumeIntegral<int64_t>());
        break;
    case 2:
        sqlite3_bind_double(statement, index, odd.ConsumeFloatingPoint<double>());
        break;
    case 3:
        sqlite3_bind_blob(statement, index, bytes.data(), size, SQLITE_TRANSIENT);
        break;
    default:
        sqlite3_bind_text(statement, index, bytes.data(), size, SQLITE_TRANSIENT);
    }
}

void insertOdd(sqlite3 *connection, FuzzedDataProvider &odd)
{
    const bool isNote = odd.ConsumeBool();
    const char *sql = isNote ? "INSERT OR IGNORE INTO Note VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)"
                             : "INSERT OR IGNORE INTO Prompt VALUES (?1, ?2, ?3, ?4, ?5)";
    sqlite3_stmt *statement = nullptr;
    check(sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr) == SQLITE_OK);
    const int columns = isNote ? 9 : 5;
    for (int index = 1; index <= columns; ++index)
        bindOdd(statement, index, odd);
    // Usually a valid identity.
    if (odd.ConsumeIntegralInRange(0, 7) > 0) {
        const std::string id = QUuid::createUuidV5(QUuid(), QByteArray::number(odd.ConsumeIntegral<int>()))
                                   .toString(QUuid::WithoutBraces)
                                   .toStdString();
        sqlite3_bind_text(statement, 1, id.data(), static_cast<int>(id.size()), SQLITE_TRANSIENT);
    }
    // The other columns usually have the right type.
    if (odd.ConsumeIntegralInRange(0, 7) > 0) {
        const std::vector<int> numbers = isNote ? std::vector{3, 4, 5} : std::vector{3, 4, 5};
        for (const int index : numbers)
            sqlite3_bind_int64(statement, index, odd.ConsumeIntegral<int64_t>());
        const std::string text = odd.ConsumeRandomLengthString(1000);
        sqlite3_bind_text(statement, 2, text.data(), static_cast<int>(text.size()), SQLITE_TRANSIENT);
    }
    sqlite3_step(statement);
    sqlite3_finalize(statement);
}

} // namespace

/// A sound file that contains values that Vesk would never write.
int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const StoreFolder folder;
    MemoryClock clock;
    static const QByteArray empty = [&clock] {
        folder.clear();
        check(NotesStore::open(folder.path(), clock).store != nullptr);
        return StoreFolder::read(folder.path());
    }();
    folder.clear();
    StoreFolder::write(folder.path(), empty);
    {
        FuzzedDataProvider odd(data, size);
        sqlite3 *connection = nullptr;
        check(sqlite3_open(folder.path().toUtf8().constData(), &connection) == SQLITE_OK);
        sqlite3_exec(connection, "BEGIN", nullptr, nullptr, nullptr);
        for (int i = 0; i < 20 && odd.remaining_bytes() > 0; ++i)
            insertOdd(connection, odd);
        sqlite3_exec(connection, "COMMIT", nullptr, nullptr, nullptr);
        sqlite3_close(connection);
    }
    const NotesReading reading = readNotes(folder.path());
    static_cast<void>(notesAsJson(reading.notes));
    for (const QByteArray &line : notesAsLines(reading.notes).split('\n'))
        check(!line.contains('\x1b'));
    NotesStore::OpenResult opened = NotesStore::open(folder.path(), clock);
    if (opened.store)
        useStore(folder.path(), std::move(opened), clock);
    else
        check(!opened.error.isEmpty());
    return 0;
}
