// SPDX-License-Identifier: MIT
#include "notes/database.h"

#include "notes/schema.h"
#include "notes/storefolder.h"

#include <QDebug>
#include <QSet>

#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

/// How long to wait for another program's lock. The user waits just as long.
constexpr int kBusyTimeoutMilliseconds = 250;

/// Whether every record has an identity and no two share one.
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

Database::OpenResult Database::open(const QString &path, StoreLock::Use use,
                                    std::chrono::milliseconds patience)
{
    using Journal = storejournal::Kind;
    OpenResult result;
    const StoreFile file(path);
    file.makeFolder();
    result.error = file.obstacle();
    if (!result.error.isEmpty())
        return result;
    StoreLock::Result locked = StoreLock::acquire(file.path(), use, patience);
    if (!locked.lock) {
        result.error = locked.error;
        return result;
    }
    try {
        // Checked only now, because another process may have created the file while we waited for the lock.
        result.error = file.isEmpty() ? file.create() : file.contentsObstacle();
    } catch (const SQLite::Exception &error) {
        result.error = file.describe(StoreTrouble::of(error.getExtendedErrorCode(),
                                                      QString::fromUtf8(error.what()), 0, file.folder()));
    }
    if (!result.error.isEmpty())
        return result;
    const Journal journal =
        storefolder::isOnNetwork(file.folder()) ? Journal::Rollback : Journal::WriteAheadLog;
    StoreTrouble trouble;
    result.database = tryOpening(file, locked.lock, journal, result, trouble);
    // The file system may not support shared memory. SQLite has no error code for that.
    if (!result.database && locked.lock && journal == Journal::WriteAheadLog
        && trouble.kind == StoreTrouble::Kind::Other)
        result.database = tryOpening(file, locked.lock, Journal::Rollback, result, trouble);
    return result;
}

std::unique_ptr<Database> Database::tryOpening(const StoreFile &file, std::unique_ptr<StoreLock> &lock,
                                               storejournal::Kind journal, OpenResult &result,
                                               StoreTrouble &trouble)
{
    std::unique_ptr<Database> database;
    result.error = {};
    result.notes.clear();
    result.prompts.clear();
    try {
        database.reset(new Database(file, journal));
        result.error = database->load(file, journal, result);
        // SQLite did not report this one, so another journal mode would not help.
        trouble.kind = StoreTrouble::Kind::Damaged;
    } catch (const SQLite::Exception &error) {
        trouble = database ? database->troubleOf(error)
                           : StoreTrouble::of(error.getExtendedErrorCode(), QString::fromUtf8(error.what()),
                                              0, file.folder());
        result.error = file.describe(trouble);
    }
    if (!result.error.isEmpty())
        return nullptr;
    database->m_lock = std::move(lock);
    return database;
}

Database::Database(const StoreFile &file, storejournal::Kind journal)
    : m_file(file)
    , m_journal(journal)
    , m_connection(file.nativePath(), SQLite::OPEN_READWRITE, kBusyTimeoutMilliseconds)
    , m_place(file.path())
{
    // Until the file is accepted. Without a journal there is nothing to move, and closing removes the empty
    // companion files that opening created.
    setCheckpointOnClose(!file.hasJournal());
    storejournal::prepare(m_connection, journal);
    // Overwrite what is deleted, whatever the library's default is.
    m_connection.exec("PRAGMA secure_delete = ON");
}

StoreError Database::load(const StoreFile &file, storejournal::Kind journal, OpenResult &result)
{
    const bool hadJournal = file.hasJournal();
    // SQLite falls back to read-only without reporting it.
    if (sqlite3_db_readonly(m_connection.getHandle(), "main") != 0)
        return file.describe(StoreTrouble::of(
            SQLITE_READONLY, QString::fromUtf8(sqlite3_errstr(SQLITE_READONLY)), 0, m_file.folder()));
    {
        SQLite::Transaction transaction(m_connection, SQLite::TransactionBehavior::IMMEDIATE);
        // Checked again, because the journal counts now.
        const int version = schema::version(m_connection);
        if (version > schema::kVersion)
            return file.newerVersion(version);
        if (schema::applicationId(m_connection) != schema::kApplicationId)
            return file.damaged();
        // Reading the tables reports their damage below. This check also finds damaged indexes, which would
        // make later saves fail or store a note twice.
        const std::string report = m_connection.execAndGet("PRAGMA integrity_check(1)").getString();
        if (report != "ok")
            return file.describe(StoreTrouble::ofCheck(QString::fromStdString(report), m_file.folder()));
        schema::migrate(m_connection);
        m_notes = std::make_unique<NoteTable>(m_connection);
        m_prompts = std::make_unique<PromptTable>(m_connection);
        result.notes = m_notes->load();
        result.prompts = m_prompts->load();
        if (!haveIdentities(result))
            return file.damaged();
        transaction.commit();
    }
    storejournal::settle(m_connection, journal);
    // After a crash, pages may be readable and yet not on the disk: when a sync fails, Linux marks the pages
    // as clean, and no later sync of the journal writes them. So write them once more, into the file, before
    // adding to them. If that fails, nothing is changed.
    if (hadJournal)
        static_cast<void>(m_connection.tryExec("PRAGMA wal_checkpoint(TRUNCATE)"));
    // Everything is in memory already, so do not keep the pages as well.
    m_connection.exec("PRAGMA cache_size = -512");
    m_connection.exec("PRAGMA shrink_memory");
    file.restrictAccess();
    setCheckpointOnClose(true);
    rememberFile();
    return {};
}

Database::Written Database::write(const std::vector<Change> &changes)
{
    Written written;
    // Otherwise SQLite would write into a file that nobody will find again, or alongside another writer.
    if (m_place.look() == StorePlace::Finding::Unreachable)
        written.trouble = {.kind = StoreTrouble::Kind::Unreachable, .detail = u"its folder is not there"_s};
    else
        written.trouble = renewLock();
    if (!written.trouble) {
        written = writeInOneTransaction(changes, false);
        if (!written.isCommitted && written.trouble->kind == StoreTrouble::Kind::RecordRefused)
            written = writeInOneTransaction(changes, true);
        m_hasFailed = !written.isCommitted;
        rememberFile();
    }
    if (written.trouble)
        qWarning() << "The notes could not be saved:" << qPrintable(written.trouble->detail);
    return written;
}

Database::Written Database::writeInOneTransaction(const std::vector<Change> &changes, bool isApart)
{
    Written written;
    try {
        SQLite::Transaction transaction(m_connection, SQLite::TransactionBehavior::IMMEDIATE);
        makeAll(changes, isApart, written);
        // A transaction that changes nothing would leave the failed one in the journal, and a crash would
        // bring it back.
        if (m_hasFailed)
            schema::touch(m_connection);
        transaction.commit();
        written.isCommitted = true;
    } catch (const SQLite::Exception &error) {
        written = {.trouble = troubleOf(error)};
    }
    return written;
}

void Database::makeAll(const std::vector<Change> &changes, bool isApart, Written &written)
{
    for (size_t place = 0; place < changes.size(); ++place) {
        const auto makeOne = [&] { std::visit([this](const auto &one) { make(one); }, changes[place]); };
        if (!isApart) {
            makeOne();
            continue;
        }
        m_connection.exec("SAVEPOINT record");
        try {
            makeOne();
        } catch (const SQLite::Exception &error) {
            const StoreTrouble trouble = troubleOf(error);
            // Any other failure affects all of them, and SQLite may have ended the transaction.
            if (trouble.kind != StoreTrouble::Kind::RecordRefused)
                throw;
            written.trouble = trouble;
            written.refused.push_back(place);
            m_connection.exec("ROLLBACK TO record");
        }
        m_connection.exec("RELEASE record");
    }
}

StoreTrouble Database::troubleOf(const SQLite::Exception &error)
{
    return StoreTrouble::of(error.getExtendedErrorCode(), QString::fromUtf8(error.what()),
                            sqlite3_system_errno(m_connection.getHandle()), m_file.folder());
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
