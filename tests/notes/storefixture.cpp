// SPDX-License-Identifier: MIT
#include "storefixture.h"

#include <SQLiteCpp/Statement.h>

using namespace Qt::StringLiterals;

namespace vesk {

QString StoreFixture::path() const
{
    return folder.filePath(u"Vesk/Notes.store"_s);
}

QString StoreFixture::journalPath() const
{
    return path() + u"-wal"_s;
}

NotesStore *StoreFixture::open()
{
    close();
    NotesStore::OpenResult result = NotesStore::open(path(), clock);
    error = result.error;
    fault = result.fault;
    store = std::move(result.store);
    return store.get();
}

Note &StoreFixture::addNote(const QString &text)
{
    return store->insert(std::make_unique<Note>(clock, text));
}

SQLite::Database StoreFixture::outsider(int flags) const
{
    return SQLite::Database(nativePath(), flags);
}

QStringList StoreFixture::rows(const char *table) const
{
    SQLite::Database connection = outsider();
    SQLite::Statement select(connection, std::string("SELECT text FROM ") + table + " ORDER BY rowid");
    QStringList result;
    while (select.executeStep())
        result.append(QString::fromStdString(select.getColumn(0).getString()));
    return result;
}

QString StoreFixture::integrity() const
{
    SQLite::Database connection = outsider();
    return QString::fromStdString(connection.execAndGet("PRAGMA integrity_check").getString());
}

} // namespace vesk
