// SPDX-License-Identifier: MIT
#include "notes/storefile.h"

#include "notes/schema.h"
#include "notes/storegenerations.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QUrl>

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Transaction.h>
#include <sqlite3.h>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

[[nodiscard]] QString sharedMemoryOf(const QString &path)
{
    return path + u"-shm"_s;
}

/// Renames a file unless the new name is taken. Returns false, with `errno` set, on failure.
[[nodiscard]] bool renameToFree(const QByteArray &from, const char *to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to, RENAME_NOREPLACE) == 0)
        return true;
    if (errno != EINVAL && errno != ENOSYS)
        return false;
    // Network file systems do not support the flag, but most have hard links.
    if (::link(from.constData(), to) == 0)
        return true;
    if (errno != EPERM && errno != ENOSYS && errno != EOPNOTSUPP)
        return false;
    if (::access(to, F_OK) == 0) {
        errno = EEXIST;
        return false;
    }
    return ::rename(from.constData(), to) == 0;
}

/// The smallest page size, so no database is smaller.
constexpr qint64 kSmallestPage = 512;

} // namespace

StoreFile::StoreFile(const QString &path)
    : m_path(QFileInfo(path).absoluteFilePath())
{
    const QString followed = QFileInfo(m_path).canonicalFilePath();
    if (!followed.isEmpty())
        m_path = followed;
}

void StoreFile::makeFolder() const
{
    if (QFileInfo::exists(folder()))
        return;
    QDir().mkpath(QFileInfo(folder()).absolutePath());
    const QByteArray name = QFile::encodeName(folder());
    if (::mkdir(name.constData(), S_IRWXU) == 0)
        ::chmod(name.constData(), S_IRWXU);
}

QString StoreFile::journalOf(const QString &path)
{
    return path + u"-wal"_s;
}

QString StoreFile::rollbackJournalOf(const QString &path)
{
    return path + u"-journal"_s;
}

QString StoreFile::folder() const
{
    return QFileInfo(m_path).absolutePath();
}

void StoreFile::removeWithCompanions(const QString &path)
{
    QFile::remove(path);
    removeCompanions(path);
}

void StoreFile::removeCompanions(const QString &path)
{
    QFile::remove(rollbackJournalOf(path));
    QFile::remove(journalOf(path));
    QFile::remove(sharedMemoryOf(path));
}

bool StoreFile::makePrivate(const QString &path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return false;
    // Whatever the process's umask has removed.
    ::fchmod(descriptor, S_IRUSR | S_IWUSR);
    ::close(descriptor);
    return true;
}

bool StoreFile::sync(const QString &path)
{
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isSynced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return isSynced;
}

StoreError StoreFile::obstacle(Access access) const
{
    const QFileInfo file(m_path);
    if (file.isSymLink())
        return {.text = tr("The file “%1” is a link to a file that does not exist.").arg(m_path)};
    if (file.exists()) {
        if (file.isDir())
            return {.text = tr("The file “%1” is a folder.").arg(m_path)};
        if (!file.isFile())
            return {.text = tr("The file “%1” is not an ordinary file.").arg(m_path)};
        // Checks the effective user, as SQLite will open the file with. File systems that are mounted
        // read-only are detected here too.
        if (::faccessat(AT_FDCWD, nativePath().c_str(), R_OK, AT_EACCESS) != 0)
            return {.text = tr("The file “%1” cannot be read (%2).").arg(m_path, qt_error_string(errno))};
        if (access == Access::ReadAndWrite
            && ::faccessat(AT_FDCWD, nativePath().c_str(), W_OK, AT_EACCESS) != 0)
            return {.text = tr("The file “%1” cannot be written (%2).").arg(m_path, qt_error_string(errno))};
    }
    if (!isEmpty())
        return {};
    // SQLite would discard the journal, and with it the last trace of the notes.
    for (const QString &journal : {journalOf(m_path), rollbackJournalOf(m_path)}) {
        if (QFileInfo(journal).size() > 0)
            return {.text = tr("The file “%1” is missing or empty, but its journal “%2” is not.")
                                .arg(m_path, journal),
                    .fault = StoreFault::Missing};
    }
    // The store existed before. Starting over would look as if all notes had been deleted, and the next copy
    // would be one of the new file.
    if (!StoreGenerations(m_path).found().isEmpty())
        return {.text = file.exists()
                            ? tr("The file “%1” is empty, but there is an earlier copy of it.").arg(m_path)
                            : tr("The file “%1” is missing, but there is a copy of it.").arg(m_path),
                .fault = StoreFault::Missing};
    return {};
}

StoreError StoreFile::contentsObstacle() const
{
    try {
        SQLite::Database connection(immutableAddress(), SQLite::OPEN_READONLY | SQLite::OPEN_URI);
        const int version = schema::version(connection);
        if (QFileInfo(m_path).size() < kSmallestPage)
            return damaged();
        if (schema::applicationId(connection) != schema::kApplicationId)
            return {.text = tr("The file “%1” is the database of another program.").arg(m_path)};
        if (version > schema::kVersion)
            return newerVersion(version);
    } catch (const SQLite::Exception &exception) {
        // The main file alone may be half written; SQLite reads it with its journal later.
        if (!isUnsettled())
            return describe(StoreTrouble::of(exception.getExtendedErrorCode(),
                                             QString::fromUtf8(exception.what()), 0, folder()));
    }
    return {};
}

bool StoreFile::isEmpty() const
{
    return QFileInfo(m_path).size() == 0;
}

bool StoreFile::hasJournal() const
{
    return QFileInfo(journalOf(m_path)).size() > 0;
}

bool StoreFile::isUnsettled() const
{
    return hasJournal() || QFileInfo(rollbackJournalOf(m_path)).size() > 0;
}

QString StoreFile::unfinishedPath() const
{
    return m_path + u".new"_s;
}

bool StoreFile::makeUnfinished(const QString &unfinished, const std::function<void(SQLite::Database &)> &fill)
{
    removeWithCompanions(unfinished);
    if (!makePrivate(unfinished))
        return false;
    SQLite::Database connection(QFile::encodeName(unfinished).toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Transaction transaction(connection);
    schema::migrate(connection);
    fill(connection);
    transaction.commit();
    return true;
}

StoreError StoreFile::create() const
{
    const QString unfinished = unfinishedPath();
    const auto cleanUp = qScopeGuard([&unfinished] { removeWithCompanions(unfinished); });
    const auto fillNothing = [](SQLite::Database &) {};
    if (!makeUnfinished(unfinished, fillNothing)
        || ::rename(QFile::encodeName(unfinished).constData(), nativePath().c_str()) != 0)
        return {.text = tr("The file “%1” cannot be created (%2).").arg(m_path, qt_error_string(errno))};
    // The entry of the renamed file must survive a power failure too. Not every file system can do this.
    static_cast<void>(sync(folder()));
    return {};
}

int StoreFile::createFilled(const std::function<void(SQLite::Database &)> &fill) const
{
    const QString unfinished = unfinishedPath();
    const auto cleanUp = qScopeGuard([&unfinished] { removeWithCompanions(unfinished); });
    if (!makeUnfinished(unfinished, fill)
        || !renameToFree(QFile::encodeName(unfinished), nativePath().c_str()))
        return errno;
    static_cast<void>(sync(folder()));
    return 0;
}

void StoreFile::restrictAccess() const
{
    for (const QString &file : {m_path, journalOf(m_path), sharedMemoryOf(m_path), rollbackJournalOf(m_path)})
        ::chmod(QFile::encodeName(file).constData(), S_IRUSR | S_IWUSR);
}

std::string StoreFile::nativePath() const
{
    return QFile::encodeName(m_path).toStdString();
}

std::string StoreFile::immutableAddress() const
{
    return (QUrl::fromLocalFile(m_path).toEncoded() + "?immutable=1").toStdString();
}

StoreError StoreFile::describe(const StoreTrouble &trouble) const
{
    using Kind = StoreTrouble::Kind;
    switch (trouble.kind) {
    case Kind::Damaged:
        return damaged();
    case Kind::NotADatabase:
        return {.text = tr("The file “%1” is not a database.").arg(m_path), .fault = StoreFault::Damaged};
    case Kind::InUse:
        return {.text = tr("The file “%1” is in use by another program.").arg(m_path)};
    case Kind::DiskFull:
        return {.text = tr("The file “%1” cannot be opened: the disk is full.").arg(m_path)};
    case Kind::QuotaUsedUp:
        return {.text = tr("The file “%1” cannot be opened: your disk quota is used up.").arg(m_path)};
    case Kind::ReadOnly:
    case Kind::NotAllowed:
        return {.text = tr("The file “%1” cannot be written (%2).").arg(m_path, trouble.detail)};
    case Kind::Lost:
    case Kind::Unreachable:
    case Kind::RecordRefused:
    case Kind::Other:
        break;
    }
    return {.text = tr("The file “%1” cannot be opened (%2).").arg(m_path, trouble.detail)};
}

StoreError StoreFile::damaged() const
{
    return {.text = tr("The file “%1” is damaged.").arg(m_path), .fault = StoreFault::Damaged};
}

StoreError StoreFile::newerVersion(int version) const
{
    return {.text = tr("The file “%1” was written by a newer Vesk (store version %2; this Vesk supports "
                       "version %3).")
                        .arg(m_path)
                        .arg(version)
                        .arg(schema::kVersion)};
}

} // namespace vesk
