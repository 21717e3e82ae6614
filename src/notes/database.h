// SPDX-License-Identifier: MIT
#pragma once

#include "notes/notetable.h"
#include "notes/pendingchanges.h"
#include "notes/prompttable.h"
#include "notes/storefile.h"

#include <SQLiteCpp/Database.h>

#include <memory>
#include <variant>
#include <vector>

namespace vesk {

/// The store's file while it is open. Owned by the store, which alone knows of it; no exception of
/// SQLite's leaves it.
class Database final
{
public:
    /// Either an open database with all that it held, or the reason why there is none.
    struct OpenResult
    {
        std::unique_ptr<Database> database;
        std::vector<Note::Fields> notes;
        std::vector<Prompt::Fields> prompts;
        StoreError error;
    };

    struct Removal
    {
        RecordKind kind;
        RecordId id;
    };
    /// A record to be written as it is now, or one to be removed.
    using Change = std::variant<const Note *, const Prompt *, Removal>;

    /// See `NotesStore::open`.
    [[nodiscard]] static OpenResult open(const QString &path);

    /// Makes all changes, in their order, in one transaction; returns once they are on the disk.
    /// False, with the file as it was, if one of them fails.
    [[nodiscard]] bool write(const std::vector<Change> &changes);

private:
    explicit Database(const StoreFile &file);

    /// Whether closing may move the journal into the file.
    void setCheckpointOnClose(bool isAllowed);
    /// Reads everything, having made sure that the file can be written. Returns why the file is
    /// refused, or nothing.
    [[nodiscard]] StoreError load(const StoreFile &file, OpenResult &result);
    void make(const Note *note) { m_notes->write(*note); }
    void make(const Prompt *prompt) { m_prompts->write(*prompt); }
    void make(const Removal &removal);

    SQLite::Database m_connection;
    // Prepared once the tables are known to be there.
    std::unique_ptr<NoteTable> m_notes;
    std::unique_ptr<PromptTable> m_prompts;
    /// Whether the last transaction failed. Its pages may stand in the journal all the same.
    bool m_hasFailed = false;
};

} // namespace vesk
