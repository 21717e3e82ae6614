// SPDX-License-Identifier: MIT
#pragma once

#include "notes/note.h"

#include <SQLiteCpp/Statement.h>

#include <vector>

namespace vesk {

/// The store's table of notes, with its prepared statements. Owned by the database; throws whatever SQLiteCpp
/// throws.
class NoteTable final
{
public:
    explicit NoteTable(SQLite::Database &connection);

    [[nodiscard]] std::vector<Note::Fields> load();
    /// Adds the note or replaces the stored one with the same identity.
    void write(const Note &note);
    void remove(const RecordId &id);

private:
    SQLite::Database &m_connection;
    SQLite::Statement m_write;
    SQLite::Statement m_remove;
};

} // namespace vesk
