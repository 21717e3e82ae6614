// SPDX-License-Identifier: MIT
#include "notes/database.h"

#include "notes/schema.h"

#include <QDebug>
#include <QSet>

#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <algorithm>

namespace vesk {

namespace {

/// How long another program's lock is waited for. The user waits as long.
constexpr int kBusyTimeoutMilliseconds = 250;

/// Whether every record has an identity, and none has another's.
[[nodiscard]] bool haveIdentities(const Database::OpenResult &contents)
{
    QSet<RecordId> ids;
    ids.reserve(static_cast<qsizetype>(contents.notes.size())
                + static_cast<qsizetype>(contents.prompts.size()));
    const auto isNew = [&ids](const auto &fields) {
        const qsizetype count = ids.size();
        ids.insert(fields.id);
        return ids.size() > count && !fields.id.isNull();
    };
    return std::ranges::all_of(contents.notes, isNew) && std::ranges::all_of(contents.prompts, isNew);
}

} // namespace

Database::OpenResult Database::open(const QString &path)
{
    OpenResult result;
    const StoreFile file(path);
    file.makeFolder();
    result.error = file.obstacle();
    if (!result.error.isEmpty())
        return result;
    try {
        result.error = file.isEmpty() ? file.create() : file.contentsObstacle();
        if (!result.error.isEmpty())
            return result;
        std::unique_ptr<Database> database(new Database(file));
        result.error = database->load(file, result);
        if (result.error.isEmpty())
            result.database = std::move(database);
    } catch (const SQLite::Exception &error) {
        result.error = file.describe(error.getErrorCode(), error.what());
    }
    return result;
}

Database::Database(const StoreFile &file)
    : m_connection(file.nativePath(), SQLite::OPEN_READWRITE, kBusyTimeoutMilliseconds)
{
    // Until the file is accepted. Without a journal there is nothing to move, and closing tidies up
    // the empty companions that opening has made.
    setCheckpointOnClose(!file.hasJournal());
}

StoreError Database::load(const StoreFile &file, OpenResult &result)
{
    const bool hadJournal = file.hasJournal();
    // SQLite falls back to reading alone without a word.
    if (sqlite3_db_readonly(m_connection.getHandle(), "main") != 0)
        return file.describe(SQLITE_READONLY, "");
    {
        SQLite::Transaction transaction(m_connection, SQLite::TransactionBehavior::IMMEDIATE);
        // Looked at again, with the journal now.
        const int version = schema::version(m_connection);
        if (version > schema::kVersion)
            return file.newerVersion(version);
        if (schema::applicationId(m_connection) != schema::kApplicationId)
            return file.damaged();
        // Damage that reading meets by itself is found below; this finds it in the indexes, too, where
        // it would make later saves fail, or write a note a second time.
        if (m_connection.execAndGet("PRAGMA integrity_check(1)").getString() != "ok")
            return file.damaged();
        schema::migrate(m_connection);
        m_notes = std::make_unique<NoteTable>(m_connection);
        m_prompts = std::make_unique<PromptTable>(m_connection);
        result.notes = m_notes->load();
        result.prompts = m_prompts->load();
        if (!haveIdentities(result))
            return file.damaged();
        transaction.commit();
    }
    m_connection.exec("PRAGMA journal_mode = WAL");
    m_connection.exec("PRAGMA synchronous = FULL");
    // What a crash has left may be there for reading and yet not on the disk: after a sync that failed,
    // Linux takes the pages for clean, and no later sync of the journal writes them. So they are written
    // once more, into the file, before anything is added to them. A failure leaves all as it was.
    if (hadJournal)
        static_cast<void>(m_connection.tryExec("PRAGMA wal_checkpoint(TRUNCATE)"));
    // Everything is in memory already; the pages that were read need not be kept as well.
    m_connection.exec("PRAGMA cache_size = -512");
    m_connection.exec("PRAGMA shrink_memory");
    file.restrictAccess();
    setCheckpointOnClose(true);
    return {};
}

bool Database::write(const std::vector<Change> &changes)
{
    try {
        SQLite::Transaction transaction(m_connection, SQLite::TransactionBehavior::IMMEDIATE);
        for (const Change &change : changes)
            std::visit([this](const auto &one) { make(one); }, change);
        // A transaction that changes nothing would leave the failed one in the journal, from where a
        // crash brings it back.
        if (m_hasFailed)
            schema::touch(m_connection);
        transaction.commit();
        m_hasFailed = false;
        return true;
    } catch (const SQLite::Exception &error) {
        m_hasFailed = true;
        qWarning() << "The notes could not be saved:" << error.what();
        return false;
    }
}

void Database::make(const Removal &removal)
{
    if (removal.kind == RecordKind::Note)
        m_notes->remove(removal.id);
    else
        m_prompts->remove(removal.id);
}

void Database::setCheckpointOnClose(bool isAllowed)
{
    sqlite3_db_config(m_connection.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, isAllowed ? 0 : 1, nullptr);
}

} // namespace vesk
