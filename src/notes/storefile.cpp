// SPDX-License-Identifier: MIT
#include "notes/storefile.h"

#include "notes/schema.h"

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

/// No database is smaller.
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
    const QString folder = QFileInfo(m_path).absolutePath();
    if (QFileInfo::exists(folder))
        return;
    QDir().mkpath(QFileInfo(folder).absolutePath());
    const QByteArray name = QFile::encodeName(folder);
    if (::mkdir(name.constData(), S_IRWXU) == 0)
        ::chmod(name.constData(), S_IRWXU);
}

QString StoreFile::journalOf(const QString &path)
{
    return path + u"-wal"_s;
}

void StoreFile::removeWithCompanions(const QString &path)
{
    QFile::remove(path);
    QFile::remove(path + u"-journal"_s);
    QFile::remove(journalOf(path));
    QFile::remove(sharedMemoryOf(path));
}

bool StoreFile::makePrivate(const QString &path)
{
    const int descriptor =
        ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return false;
    // Whatever the process's mask has taken away.
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

StoreError StoreFile::obstacle() const
{
    const QFileInfo file(m_path);
    if (file.isSymLink())
        return error(tr("is a link to a file that does not exist"));
    if (file.exists()) {
        if (file.isDir())
            return error(tr("is a folder"));
        if (!file.isFile())
            return error(tr("is not an ordinary file"));
        // Asked with the effective user, as the opening will be; tells of file systems that are
        // mounted read-only as well.
        if (::faccessat(AT_FDCWD, nativePath().c_str(), R_OK, AT_EACCESS) != 0)
            return error(tr("cannot be read (%1)").arg(qt_error_string(errno)));
        if (::faccessat(AT_FDCWD, nativePath().c_str(), W_OK, AT_EACCESS) != 0)
            return error(tr("cannot be written (%1)").arg(qt_error_string(errno)));
    }
    // SQLite would throw the journal away, and with it the last thing that is left of the notes.
    if (isEmpty() && hasJournal())
        return error(tr("is missing or empty, but its journal “%1” is not").arg(journalOf(m_path)), true);
    return {};
}

StoreError StoreFile::contentsObstacle() const
{
    // An immutable database is read without locks and without regard to the journal.
    const QByteArray address = QUrl::fromLocalFile(m_path).toEncoded() + "?immutable=1";
    try {
        SQLite::Database connection(address.constData(), SQLite::OPEN_READONLY | SQLite::OPEN_URI);
        const int version = schema::version(connection);
        if (QFileInfo(m_path).size() < kSmallestPage)
            return damaged();
        if (schema::applicationId(connection) != schema::kApplicationId)
            return error(tr("is a database of another program"));
        if (version > schema::kVersion)
            return newerVersion(version);
    } catch (const SQLite::Exception &exception) {
        // With a journal the main file alone may be half written; both together are read later.
        if (!hasJournal())
            return describe(exception.getErrorCode(), exception.what());
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

StoreError StoreFile::create() const
{
    const QString unfinished = m_path + u".new"_s;
    removeWithCompanions(unfinished);
    const auto cleanUp = qScopeGuard([&unfinished] { removeWithCompanions(unfinished); });

    const QByteArray name = QFile::encodeName(unfinished);
    if (!makePrivate(unfinished))
        return error(tr("cannot be created (%1)").arg(qt_error_string(errno)));
    {
        SQLite::Database connection(name.constData(), SQLite::OPEN_READWRITE);
        SQLite::Transaction transaction(connection);
        schema::migrate(connection);
        transaction.commit();
        connection.exec("PRAGMA journal_mode = WAL");
    }
    if (::rename(name.constData(), nativePath().c_str()) != 0)
        return error(tr("cannot be created (%1)").arg(qt_error_string(errno)));
    // The entry of a renamed file is to survive a power failure too. Not every file system can.
    static_cast<void>(sync(QFileInfo(m_path).absolutePath()));
    return {};
}

void StoreFile::restrictAccess() const
{
    for (const QString &file : {m_path, journalOf(m_path), sharedMemoryOf(m_path)})
        ::chmod(QFile::encodeName(file).constData(), S_IRUSR | S_IWUSR);
}

std::string StoreFile::nativePath() const
{
    return QFile::encodeName(m_path).toStdString();
}

StoreError StoreFile::describe(int sqliteCode, const char *message) const
{
    switch (sqliteCode & 0xFF) {
    case SQLITE_NOTADB:
        return error(tr("is not a database"), true);
    case SQLITE_CORRUPT:
    case SQLITE_ERROR: // a table or column is missing
        return damaged();
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return error(tr("is in use by another program"));
    case SQLITE_READONLY:
        return error(tr("cannot be written"));
    default:
        return error(tr("cannot be opened (%1)").arg(QString::fromUtf8(message)),
                     (sqliteCode & 0xFF) == SQLITE_IOERR);
    }
}

StoreError StoreFile::damaged() const
{
    return error(tr("is damaged"), true);
}

StoreError StoreFile::newerVersion(int version) const
{
    return error(tr("was written by a newer Vesk (version %1 of the store; this one knows version %2)")
                     .arg(version)
                     .arg(schema::kVersion));
}

StoreError StoreFile::error(const QString &predicate, bool isDamage) const
{
    return {.text = tr("The file “%1” %2.").arg(m_path, predicate), .isDamage = isDamage};
}

} // namespace vesk
