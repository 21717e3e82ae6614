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

/// What SQLite keeps beside a database.
[[nodiscard]] QString journalOf(const QString &path)
{
    return path + u"-wal"_s;
}

[[nodiscard]] QString sharedMemoryOf(const QString &path)
{
    return path + u"-shm"_s;
}

/// No database is smaller.
constexpr qint64 kSmallestPage = 512;

void removeWithCompanions(const QString &path)
{
    QFile::remove(path);
    QFile::remove(path + u"-journal"_s);
    QFile::remove(journalOf(path));
    QFile::remove(sharedMemoryOf(path));
}

/// Makes the entry of a new or renamed file survive a power failure.
void syncFolder(const QString &folder)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

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

QString StoreFile::obstacle() const
{
    const QFileInfo file(m_path);
    if (file.isSymLink())
        return sentence(u"is a link to a file that does not exist"_s);
    if (file.exists()) {
        if (file.isDir())
            return sentence(u"is a folder"_s);
        if (!file.isFile())
            return sentence(u"is not an ordinary file"_s);
        // Asked with the effective user, as the opening will be; tells of file systems that are
        // mounted read-only as well.
        if (::faccessat(AT_FDCWD, nativePath().c_str(), R_OK, AT_EACCESS) != 0)
            return sentence(u"cannot be read (%1)"_s.arg(qt_error_string(errno)));
        if (::faccessat(AT_FDCWD, nativePath().c_str(), W_OK, AT_EACCESS) != 0)
            return sentence(u"cannot be written (%1)"_s.arg(qt_error_string(errno)));
    }
    // SQLite would throw the journal away, and with it the last thing that is left of the notes.
    if (isEmpty() && hasJournal())
        return sentence(u"is missing or empty, but its journal “%1” is not"_s.arg(journalOf(m_path)));
    return {};
}

QString StoreFile::contentsObstacle() const
{
    // An immutable database is read without locks and without regard to the journal.
    const QByteArray address = QUrl::fromLocalFile(m_path).toEncoded() + "?immutable=1";
    try {
        SQLite::Database connection(address.constData(), SQLite::OPEN_READONLY | SQLite::OPEN_URI);
        const int version = schema::version(connection);
        if (QFileInfo(m_path).size() < kSmallestPage)
            return damaged();
        if (schema::applicationId(connection) != schema::kApplicationId)
            return sentence(u"is a database of another program"_s);
        if (version > schema::kVersion)
            return newerVersion(version);
    } catch (const SQLite::Exception &error) {
        // With a journal the main file alone may be half written; both together are read later.
        if (!hasJournal())
            return describe(error.getErrorCode(), error.what());
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

QString StoreFile::create() const
{
    const QString unfinished = m_path + u".new"_s;
    removeWithCompanions(unfinished);
    const auto cleanUp = qScopeGuard([&unfinished] { removeWithCompanions(unfinished); });

    const QByteArray name = QFile::encodeName(unfinished);
    const int descriptor = ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return sentence(u"cannot be created (%1)"_s.arg(qt_error_string(errno)));
    ::fchmod(descriptor, S_IRUSR | S_IWUSR);
    ::close(descriptor);
    {
        SQLite::Database connection(name.constData(), SQLite::OPEN_READWRITE);
        SQLite::Transaction transaction(connection);
        schema::migrate(connection);
        transaction.commit();
        connection.exec("PRAGMA journal_mode = WAL");
    }
    if (::rename(name.constData(), nativePath().c_str()) != 0)
        return sentence(u"cannot be created (%1)"_s.arg(qt_error_string(errno)));
    syncFolder(QFileInfo(m_path).absolutePath());
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

QString StoreFile::describe(int sqliteCode, const char *message) const
{
    switch (sqliteCode & 0xFF) {
    case SQLITE_NOTADB:
        return sentence(u"is not a database"_s);
    case SQLITE_CORRUPT:
    case SQLITE_ERROR: // a table or column is missing
        return damaged();
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return sentence(u"is in use by another program"_s);
    case SQLITE_READONLY:
        return sentence(u"cannot be written"_s);
    default:
        return sentence(u"cannot be opened (%1)"_s.arg(QString::fromUtf8(message)));
    }
}

QString StoreFile::damaged() const
{
    return sentence(u"is damaged"_s);
}

QString StoreFile::newerVersion(int version) const
{
    return sentence(
        u"was written by a newer Vesk (version %1 of the store; this one knows version %2)"_s.arg(version)
            .arg(schema::kVersion));
}

QString StoreFile::sentence(const QString &predicate) const
{
    return u"The file “%1” %2."_s.arg(m_path, predicate);
}

} // namespace vesk
