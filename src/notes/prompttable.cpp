// SPDX-License-Identifier: MIT
#include "notes/prompttable.h"

#include "notes/sqlvalues.h"

#include <SQLiteCpp/Database.h>

namespace vesk {

PromptTable::PromptTable(SQLite::Database &connection)
    : m_connection(connection)
    , m_write(connection, R"(
        INSERT INTO Prompt (id, text, isDone, createdAt, isCaptured) VALUES (?1, ?2, ?3, ?4, ?5)
        ON CONFLICT (id) DO UPDATE SET text = ?2, isDone = ?3, createdAt = ?4, isCaptured = ?5)")
    , m_remove(connection, "DELETE FROM Prompt WHERE id = ?1")
{
}

std::vector<Prompt::Fields> PromptTable::load()
{
    std::vector<Prompt::Fields> result;
    SQLite::Statement select(m_connection, "SELECT id, text, isDone, createdAt, isCaptured FROM Prompt");
    while (select.executeStep()) {
        result.push_back({
            .id = sqlvalues::id(select.getColumn(0)),
            .text = sqlvalues::text(select.getColumn(1)),
            .isDone = select.getColumn(2).getInt() != 0,
            .createdAt = sqlvalues::date(select.getColumn(3)),
            .isCaptured = select.getColumn(4).getInt() != 0,
        });
    }
    return result;
}

void PromptTable::write(const Prompt &prompt)
{
    // Also after a failure, which leaves the statement where it stopped.
    m_write.tryReset();
    sqlvalues::bind(m_write, 1, prompt.id());
    sqlvalues::bind(m_write, 2, prompt.text());
    sqlvalues::bind(m_write, 3, prompt.isDone());
    sqlvalues::bind(m_write, 4, prompt.createdAt());
    sqlvalues::bind(m_write, 5, prompt.isCaptured());
    m_write.exec();
    m_write.reset();
    m_write.clearBindings();
}

void PromptTable::remove(const RecordId &id)
{
    m_remove.tryReset();
    sqlvalues::bind(m_remove, 1, id);
    m_remove.exec();
    m_remove.reset();
}

} // namespace vesk
