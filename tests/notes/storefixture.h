// SPDX-License-Identifier: MIT
#pragma once

#include "notes/notesstore.h"
#include "platform/memory/memoryclock.h"

#include <QTemporaryDir>

#include <SQLiteCpp/Database.h>

namespace vesk {

/// A folder with a store in it, and a second connection that looks at the file from outside.
class StoreFixture
{
public:
    [[nodiscard]] QString path() const;
    [[nodiscard]] QString journalPath() const;
    [[nodiscard]] std::string nativePath() const { return path().toStdString(); }

    /// Closes the store if it is open, and opens it again; returns null, with `error` set, on failure.
    NotesStore *open();
    void close() { store.reset(); }
    Note &addNote(const QString &text);

    [[nodiscard]] SQLite::Database outsider(int flags = SQLite::OPEN_READONLY) const;
    /// The texts of the table's rows in the file, in the order in which they were added.
    [[nodiscard]] QStringList rows(const char *table = "Note") const;
    /// SQLite's verdict on the file.
    [[nodiscard]] QString integrity() const;

    QTemporaryDir folder;
    MemoryClock clock;
    std::unique_ptr<NotesStore> store;
    QString error;
    StoreFault fault = StoreFault::None;
};

} // namespace vesk
