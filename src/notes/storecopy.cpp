// SPDX-License-Identifier: MIT
#include "notes/storecopy.h"

#include "notes/schema.h"
#include "notes/storefile.h"
#include "notes/storefolder.h"
#include "notes/storegenerations.h"
#include "notes/storetrouble.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <algorithm>
#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kInterval = 24h;
/// How long the store must have been left alone.
constexpr auto kQuiet = 10min;
/// After this long without a copy, the user must be told.
constexpr auto kOverdue = 72h;
constexpr int kBusyTimeoutMilliseconds = 1000;
/// The last of the disk space is reserved for the notes.
constexpr qint64 kSpaceLeft = qint64{64} << 20;

[[nodiscard]] Date changedAt(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() ? Date{std::chrono::milliseconds{file.lastModified().toMSecsSinceEpoch()}}
                         : kDistantPast;
}

StoreCopy::Outcome outcomeOf(const StoreTrouble &trouble)
{
    using Kind = StoreTrouble::Kind;
    switch (trouble.kind) {
    case Kind::Damaged:
    case Kind::NotADatabase:
        return StoreCopy::Outcome::StoreDamaged;
    case Kind::DiskFull:
    case Kind::QuotaUsedUp:
        return StoreCopy::Outcome::DiskTooFull;
    case Kind::ReadOnly:
    case Kind::NotAllowed:
        return StoreCopy::Outcome::NotAllowed;
    default:
        return StoreCopy::Outcome::Failed;
    }
}

} // namespace

StoreCopy::StoreCopy(const QString &store)
    : StoreCopy(store, storefolder::freeBytes)
{
}

StoreCopy::StoreCopy(const QString &store, FreeSpace freeSpace)
    : m_store(StoreFile(store).path())
    , m_path(StoreGenerations(m_store).newest())
    , m_freeSpace(std::move(freeSpace))
{
}

std::optional<Date> StoreCopy::madeAt() const
{
    const QList<QString> found = StoreGenerations(m_store).found();
    return found.isEmpty() ? std::nullopt : std::optional(changedAt(found.first()));
}

bool StoreCopy::isDue(Date now) const
{
    const Date written = std::max(changedAt(m_store), changedAt(StoreFile::journalOf(m_store)));
    // A date in the future comes from a clock that was wrong, so ignore it.
    const bool isQuiet = written != kDistantPast && std::chrono::abs(now - written) >= kQuiet;
    const std::optional<Date> made = madeAt();
    return isQuiet && (!made || *made > now || (now - *made >= kInterval && written > *made));
}

bool StoreCopy::isOverdue(Date now) const
{
    const std::optional<Date> made = madeAt();
    return !made || now - *made >= kOverdue;
}

StoreCopy::Outcome StoreCopy::make() const
{
    const QFileInfo file(m_store);
    if (file.size() == 0)
        return Outcome::NothingToCopy;
    const qint64 size = file.size() + QFileInfo(StoreFile::journalOf(m_store)).size();
    const std::optional<qint64> space = m_freeSpace(file.path());
    if (space && *space < size + kSpaceLeft)
        return Outcome::DiskTooFull;
    const QString unfinished = m_path + u".new"_s;
    StoreFile::removeWithCompanions(unfinished);
    const auto cleanUp = qScopeGuard([&unfinished] { StoreFile::removeWithCompanions(unfinished); });
    qint64 records = 0;
    try {
        if (!StoreFile::makePrivate(unfinished))
            return outcomeOf(StoreTrouble::of(SQLITE_CANTOPEN, {}, errno, file.path()));
        const Outcome outcome = copyTo(unfinished, records);
        if (outcome != Outcome::Made)
            return outcome;
    } catch (const SQLite::Exception &error) {
        return outcomeOf(
            StoreTrouble::of(error.getExtendedErrorCode(), QString::fromUtf8(error.what()), 0, file.path()));
    }
    if (!StoreFile::sync(unfinished) || !StoreGenerations(m_store).add(unfinished, records))
        return outcomeOf(StoreTrouble::of(SQLITE_IOERR, {}, errno, file.path()));
    // Not every file system can do this; the earlier copy may then reappear after a power failure.
    static_cast<void>(StoreFile::sync(file.path()));
    return Outcome::Made;
}

StoreCopy::Outcome StoreCopy::copyTo(const QString &unfinished, qint64 &records) const
{
    SQLite::Database source(StoreFile(m_store).nativePath(), SQLite::OPEN_READWRITE,
                            kBusyTimeoutMilliseconds);
    // The store moves its journal into the file itself.
    sqlite3_db_config(source.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    source.exec("PRAGMA query_only = ON");
    SQLite::Database copy(QFile::encodeName(unfinished).toStdString(), SQLite::OPEN_READWRITE);
    {
        // A consistent snapshot, whatever is saved meanwhile.
        const SQLite::Transaction snapshot(source, SQLite::TransactionBehavior::DEFERRED);
        if (schema::applicationId(source) != schema::kApplicationId
            || schema::version(source) != schema::kVersion)
            return Outcome::Failed;
        SQLite::Backup backup(copy, source);
        const int step = backup.executeStep();
        if (step != SQLITE_DONE)
            return outcomeOf(StoreTrouble::of(step, {}, 0, QFileInfo(m_store).path()));
    }
    // A single file that can be moved on its own.
    copy.exec("PRAGMA journal_mode = DELETE");
    const std::string report = copy.execAndGet("PRAGMA integrity_check(1)").getString();
    if (report != "ok")
        return outcomeOf(StoreTrouble::ofCheck(QString::fromStdString(report), QFileInfo(m_store).path()));
    records = schema::countRecords(copy);
    return records > 0 ? Outcome::Made : Outcome::NothingToCopy;
}

} // namespace vesk
