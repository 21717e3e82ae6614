// SPDX-License-Identifier: MIT
#include "notes/notetable.h"

#include "notes/sqlvalues.h"

#include <SQLiteCpp/Database.h>

namespace vesk {

NoteTable::NoteTable(SQLite::Database &connection)
    : m_connection(connection)
    , m_write(connection, R"(
        INSERT INTO Note (id, text, createdAt, updatedAt, isPinned,
                          sourceApp, sourceBundleID, sourceTitle, sourceURL)
        VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)
        ON CONFLICT (id) DO UPDATE SET
            text = ?2, createdAt = ?3, updatedAt = ?4, isPinned = ?5,
            sourceApp = ?6, sourceBundleID = ?7, sourceTitle = ?8, sourceURL = ?9)")
    , m_remove(connection, "DELETE FROM Note WHERE id = ?1")
{
}

std::vector<Note::Fields> NoteTable::load()
{
    std::vector<Note::Fields> result;
    result.reserve(static_cast<size_t>(m_connection.execAndGet("SELECT COUNT(*) FROM Note").getInt64()));
    SQLite::Statement select(m_connection, R"(
        SELECT id, text, createdAt, updatedAt, isPinned, sourceApp, sourceBundleID, sourceTitle, sourceURL
        FROM Note)");
    while (select.executeStep()) {
        result.push_back({
            .id = sqlvalues::id(select.getColumn(0)),
            .text = sqlvalues::compactText(select.getColumn(1)),
            .createdAt = sqlvalues::date(select.getColumn(2)),
            .updatedAt = sqlvalues::date(select.getColumn(3)),
            .isPinned = select.getColumn(4).getInt() != 0,
            .sourceApp = sqlvalues::optionalText(select.getColumn(5)),
            .sourceBundleID = sqlvalues::optionalText(select.getColumn(6)),
            .sourceTitle = sqlvalues::optionalText(select.getColumn(7)),
            .sourceURL = sqlvalues::optionalText(select.getColumn(8)),
        });
    }
    return result;
}

void NoteTable::write(const Note &note)
{
    // Also after a failure, which leaves the statement where it stopped.
    m_write.tryReset();
    sqlvalues::bind(m_write, 1, note.id());
    sqlvalues::bind(m_write, 2, note.utf8Text());
    sqlvalues::bind(m_write, 3, note.createdAt());
    sqlvalues::bind(m_write, 4, note.updatedAt());
    sqlvalues::bind(m_write, 5, note.isPinned());
    sqlvalues::bind(m_write, 6, note.sourceApp());
    sqlvalues::bind(m_write, 7, note.sourceBundleID());
    sqlvalues::bind(m_write, 8, note.sourceTitle());
    sqlvalues::bind(m_write, 9, note.sourceURL());
    m_write.exec();
    m_write.reset();
    // Do not keep a copy of a possibly huge text until the next write.
    m_write.clearBindings();
}

void NoteTable::remove(const RecordId &id)
{
    m_remove.tryReset();
    sqlvalues::bind(m_remove, 1, id);
    m_remove.exec();
    m_remove.reset();
}

} // namespace vesk
