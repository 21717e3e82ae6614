// SPDX-License-Identifier: MIT
#include "notes/storecopy.h"

#include "notes/schema.h"
#include "notes/storefile.h"

#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QStorageInfo>

#include <SQLiteCpp/Backup.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kInterval = 24h;
/// How long nobody has to have written anything.
constexpr auto kQuiet = 10min;
constexpr int kBusyTimeoutMilliseconds = 1000;
/// The last space on a disk belongs to the notes.
constexpr qint64 kSpaceLeft = qint64{64} << 20;

[[nodiscard]] Date changedAt(const QString &path)
{
    const QFileInfo file(path);
    return file.exists() ? Date{std::chrono::milliseconds{file.lastModified().toMSecsSinceEpoch()}}
                         : kDistantPast;
}

[[nodiscard]] QString quoted(QString path)
{
    return u'\'' + path.replace(u'\'', u"'\\''"_s) + u'\'';
}

} // namespace

StoreCopy::StoreCopy(const QString &store)
    : m_store(StoreFile(store).path())
{
    const QFileInfo file(m_store);
    m_path = file.path() + u'/' + file.completeBaseName() + u".copy"_s;
}

std::optional<Date> StoreCopy::madeAt() const
{
    const Date date = changedAt(m_path);
    return date == kDistantPast ? std::nullopt : std::optional(date);
}

bool StoreCopy::isDue(Date now) const
{
    const Date written = std::max(changedAt(m_store), changedAt(StoreFile::journalOf(m_store)));
    // A date far to come is left by a clock that was wrong, and says nothing.
    const bool isQuiet = written != kDistantPast && std::chrono::abs(now - written) >= kQuiet;
    const std::optional<Date> made = madeAt();
    return isQuiet && (!made || *made > now || (now - *made >= kInterval && written > *made));
}

bool StoreCopy::make() const
{
    const QFileInfo file(m_store);
    const qint64 size = file.size() + QFileInfo(StoreFile::journalOf(m_store)).size();
    if (file.size() == 0 || QStorageInfo(file.path()).bytesAvailable() < size + kSpaceLeft)
        return false;
    const QString unfinished = m_path + u".new"_s;
    StoreFile::removeWithCompanions(unfinished);
    const auto cleanUp = qScopeGuard([&unfinished] { StoreFile::removeWithCompanions(unfinished); });
    try {
        if (!StoreFile::makePrivate(unfinished) || !copyTo(unfinished) || !StoreFile::sync(unfinished))
            return false;
    } catch (const SQLite::Exception &) {
        return false;
    }
    if (std::rename(QFile::encodeName(unfinished).constData(), QFile::encodeName(m_path).constData()) != 0)
        return false;
    // Not every file system can; then the earlier copy may come back with the power.
    static_cast<void>(StoreFile::sync(QFileInfo(m_path).path()));
    return true;
}

bool StoreCopy::copyTo(const QString &unfinished) const
{
    SQLite::Database source(StoreFile(m_store).nativePath(), SQLite::OPEN_READWRITE,
                            kBusyTimeoutMilliseconds);
    // Moving the journal into the file is left to the store.
    sqlite3_db_config(source.getHandle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    source.exec("PRAGMA query_only = ON");
    SQLite::Database copy(QFile::encodeName(unfinished).toStdString(), SQLite::OPEN_READWRITE);
    {
        // All of the copy is of one moment, whatever is saved meanwhile.
        const SQLite::Transaction snapshot(source, SQLite::TransactionBehavior::DEFERRED);
        if (schema::applicationId(source) != schema::kApplicationId
            || schema::version(source) != schema::kVersion)
            return false;
        SQLite::Backup backup(copy, source);
        if (backup.executeStep() != SQLITE_DONE)
            return false;
    }
    // One file, that can be moved alone.
    copy.exec("PRAGMA journal_mode = DELETE");
    const int records =
        copy.execAndGet("SELECT (SELECT COUNT(*) FROM Note) + (SELECT COUNT(*) FROM Prompt)").getInt();
    return records > 0 && copy.execAndGet("PRAGMA integrity_check(1)").getString() == "ok";
}

QString StoreCopy::restoringCommand() const
{
    const QFileInfo file(m_store);
    return u"cd %1 && mkdir -p damaged && mv --backup=numbered %2* damaged && cp %3 %2"_s.arg(
        quoted(file.path()), quoted(file.fileName()), quoted(QFileInfo(m_path).fileName()));
}

} // namespace vesk
