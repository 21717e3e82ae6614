// SPDX-License-Identifier: MIT
#pragma once

#include "notes/prompt.h"

#include <SQLiteCpp/Statement.h>

#include <vector>

namespace vesk {

/// The store's table of prompts, with its prepared statements. Owned by the database; throws whatever
/// SQLiteCpp throws.
class PromptTable final
{
public:
    explicit PromptTable(SQLite::Database &connection);

    [[nodiscard]] std::vector<Prompt::Fields> load();
    /// Adds the prompt or replaces the stored one with the same identity.
    void write(const Prompt &prompt);
    void remove(const RecordId &id);

private:
    SQLite::Database &m_connection;
    SQLite::Statement m_write;
    SQLite::Statement m_remove;
};

} // namespace vesk
