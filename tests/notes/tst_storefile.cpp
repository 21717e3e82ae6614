// SPDX-License-Identifier: MIT
#include "notes/notesreader.h"
#include "notes/storeadvice.h"
#include "storefixture.h"
#include "virtualdesktop/files.h"

#include <QCoreApplication>
#include <QProcess>
#include <QScopeGuard>
#include <QTest>

#include <SQLiteCpp/Transaction.h>

#include <cstdio>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

constexpr auto kHoldLock = "--hold-lock";
constexpr qint64 kPageSize = 4096;
/// A user without permissions.
constexpr uid_t kNobody = 65534;

/// What this program does when it is run as another program that has a database open: locks it until its
/// input ends. A separate process, because closing a file in the test would release the test's own locks.
int holdLock(const char *path, const char *statement)
{
    SQLite::Database connection(path, SQLite::OPEN_READWRITE);
    connection.exec(statement);
    std::puts("locked");
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}

std::optional<QByteArray> bytesOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// Pages are counted from 1.
void overwritePage(const StoreFixture &fixture, qint64 page)
{
    QFile file(fixture.path());
    QVERIFY(file.open(QIODevice::ReadWrite) && file.seek((page - 1) * kPageSize));
    QCOMPARE(file.write(QByteArray(kPageSize, 'x')), kPageSize);
}

/// Leaves the store like a program that made `change` and then crashed.
void copyCrashed(const QString &path, const std::function<void(SQLite::Database &)> &change)
{
    // The files while they are open are what a crash leaves.
    const QString other = path + u".open"_s;
    QVERIFY(QFile::rename(path, other));
    SQLite::Database connection(other.toStdString(), SQLite::OPEN_READWRITE);
    connection.exec("PRAGMA journal_mode = WAL");
    change(connection);
    QVERIFY(QFile::copy(other + u"-wal"_s, path + u"-wal"_s));
    QVERIFY(QFile::copy(other, path));
}

} // namespace

using Preparation = std::function<void(const StoreFixture &)>;
Q_DECLARE_METATYPE(Preparation)

class TestStoreFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void isForItsUserOnly_data();
    void isForItsUserOnly();
    void leavesAnExistingFolderAsItIs();
    void isMadeFromAnEmptyFile();
    void isMadeDespiteAHalfMadeOne();
    void isReadWithTheJournalLeftByACrash();
    void refuses_data();
    void refuses();
    void isNotCreatedAnewIfThereIsACopy_data();
    void isNotCreatedAnewIfThereIsACopy();
    void refusesWhatItMayNotWrite();
    void refusesALockedFile_data();
    void refusesALockedFile();
    void refusesAPathThatCannotBeMade();

private:
    /// A closed store with a few notes.
    void makeStore();

    std::unique_ptr<StoreFixture> m_fixture;
};

void TestStoreFile::init()
{
    m_fixture = std::make_unique<StoreFixture>();
}

void TestStoreFile::makeStore()
{
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    for (int i = 0; i < 100; ++i)
        m_fixture->addNote(QString(1000, u'a'));
    QVERIFY(m_fixture->store->save());
    m_fixture->close();
    QVERIFY(!QFile::exists(m_fixture->journalPath()));
}

void TestStoreFile::isForItsUserOnly_data()
{
    QTest::addColumn<uint>("mask");
    QTest::newRow("permissive") << 0U;
    QTest::newRow("usual") << 022U;
    QTest::newRow("odd") << 0277U;
    QTest::newRow("everything taken away") << 0777U;
}

void TestStoreFile::isForItsUserOnly()
{
    QFETCH(uint, mask);
    const auto verifyModes = [this] {
        m_fixture->addNote(u"a"_s);
        QVERIFY(m_fixture->store->save());
        QCOMPARE(modeOf(m_fixture->path()), mode_t{0600});
        QCOMPARE(modeOf(m_fixture->journalPath()), mode_t{0600});
        QCOMPARE(modeOf(m_fixture->path() + u"-shm"_s), mode_t{0600});
    };
    const mode_t before = ::umask(mask);
    const auto restore = qScopeGuard([before] { ::umask(before); });
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    QCOMPARE(modeOf(QFileInfo(m_fixture->path()).path()), mode_t{0700});
    verifyModes();

    // A file from elsewhere, such as a backup.
    m_fixture->close();
    QCOMPARE(::chmod(m_fixture->nativePath().c_str(), 0644), 0);
    QVERIFY(m_fixture->open());
    verifyModes();
}

void TestStoreFile::leavesAnExistingFolderAsItIs()
{
    const QString folder = QFileInfo(m_fixture->path()).path();
    QVERIFY(QDir().mkpath(folder));
    QCOMPARE(::chmod(QFile::encodeName(folder).constData(), 0755), 0);
    QVERIFY(m_fixture->open());
    QCOMPARE(modeOf(folder), mode_t{0755});
}

void TestStoreFile::isMadeFromAnEmptyFile()
{
    QVERIFY(writeFile(m_fixture->path(), {}));
    makeStore();
    QVERIFY(m_fixture->open());
    QCOMPARE(m_fixture->store->notes().count(), 100);
}

void TestStoreFile::isMadeDespiteAHalfMadeOne()
{
    QVERIFY(writeFile(m_fixture->path() + u".new"_s, "half"));
    QVERIFY(writeFile(m_fixture->path() + u".new-journal"_s, "half"));
    makeStore();
    const QStringList files = QFileInfo(m_fixture->path()).dir().entryList(QDir::Files);
    QCOMPARE(files, (QStringList{u"Notes.lock"_s, u"Notes.store"_s}));
}

void TestStoreFile::isReadWithTheJournalLeftByACrash()
{
    makeStore();
    copyCrashed(m_fixture->path(), [](SQLite::Database &connection) {
        connection.exec("UPDATE Note SET text = 'from the journal'");
    });
    QVERIFY(QFileInfo(m_fixture->journalPath()).size() > 0);
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    QCOMPARE(m_fixture->store->notes().count(), 100);
    QCOMPARE(m_fixture->store->notes().first()->text(), u"from the journal"_s);
    QCOMPARE(m_fixture->integrity(), u"ok"_s);
}

void TestStoreFile::refuses_data()
{
    QTest::addColumn<Preparation>("prepare");
    QTest::addColumn<QString>("reason");

    // Only for damage does Vesk advise giving the file up.
    const auto row = [](const char *name, const QString &reason, Preparation prepare) {
        QTest::newRow(name) << prepare << reason;
    };
    const auto execute = [](const StoreFixture &fixture, const char *statements) {
        fixture.outsider(SQLite::OPEN_READWRITE).exec(statements);
    };
    const auto truncate = [](const StoreFixture &fixture, qint64 size) {
        QVERIFY(QFile::resize(fixture.path(), size));
    };
    const auto makeOther = [](const StoreFixture &fixture) {
        QVERIFY(QFile::remove(fixture.path()));
        fixture.outsider(SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
            .exec("CREATE TABLE Note (id, text); INSERT INTO Note VALUES (1, 'theirs')");
    };

    row("a folder", u"is a folder"_s, [](const StoreFixture &fixture) {
        QVERIFY(QFile::remove(fixture.path()));
        QVERIFY(QDir().mkdir(fixture.path()));
    });
    row("a pipe", u"is not an ordinary file"_s, [](const StoreFixture &fixture) {
        QVERIFY(QFile::remove(fixture.path()));
        QCOMPARE(::mkfifo(fixture.nativePath().c_str(), 0600), 0);
    });
    row("a link to nowhere", u"is a link to a file that does not exist"_s, [](const StoreFixture &fixture) {
        QVERIFY(QFile::remove(fixture.path()));
        QVERIFY(QFile::link(u"/nowhere/Notes.store"_s, fixture.path()));
    });
    row("text", u"is not a database"_s,
        [](const StoreFixture &fixture) { QVERIFY(writeFile(fixture.path(), QByteArray(5000, 'x'))); });
    row("one byte", u"is damaged"_s,
        [](const StoreFixture &fixture) { QVERIFY(writeFile(fixture.path(), "S")); });
    row("zeros", u"is not a database"_s,
        [](const StoreFixture &fixture) { QVERIFY(writeFile(fixture.path(), QByteArray(8192, '\0'))); });
    row("cut within the header", u"is damaged"_s,
        [=](const StoreFixture &fixture) { truncate(fixture, 50); });
    row("cut after the first page", u"is damaged"_s,
        [=](const StoreFixture &fixture) { truncate(fixture, kPageSize); });
    row("cut within the last page", u"is damaged"_s, [=](const StoreFixture &fixture) {
        truncate(fixture, QFileInfo(fixture.path()).size() - kPageSize - 1);
    });
    row("a page of notes overwritten", u"is damaged"_s, [](const StoreFixture &fixture) {
        overwritePage(fixture, QFileInfo(fixture.path()).size() / kPageSize / 2);
    });
    row("a note missing in the index", u"is damaged"_s, [=](const StoreFixture &fixture) {
        const std::string root =
            fixture.outsider()
                .execAndGet("SELECT rootpage FROM sqlite_schema WHERE name = 'sqlite_autoindex_Note_1'")
                .getString();
        // A note that is added while SQLite does not know about the index.
        execute(fixture, "PRAGMA writable_schema = ON;"
                         "UPDATE sqlite_schema SET sql = replace(sql, 'PRIMARY KEY', '') WHERE name = 'Note';"
                         "DELETE FROM sqlite_schema WHERE name = 'sqlite_autoindex_Note_1'");
        execute(fixture, "INSERT INTO Note SELECT '6f9619ff-8b86-d011-b42d-00c04fc964ff', text, createdAt,"
                         "updatedAt, isPinned, NULL, NULL, NULL, NULL FROM Note WHERE rowid = 1");
        execute(fixture, ("PRAGMA writable_schema = ON; INSERT INTO sqlite_schema VALUES"
                          "('index', 'sqlite_autoindex_Note_1', 'Note', "
                          + root
                          + ", NULL);"
                            "UPDATE sqlite_schema SET sql = replace(sql, 'id TEXT NOT NULL ',"
                            "'id TEXT NOT NULL PRIMARY KEY') WHERE name = 'Note'")
                             .c_str());
    });
    row("a table missing", u"is damaged"_s,
        [=](const StoreFixture &fixture) { execute(fixture, "DROP TABLE Prompt"); });
    row("a column missing", u"is damaged"_s,
        [=](const StoreFixture &fixture) { execute(fixture, "ALTER TABLE Note DROP COLUMN sourceURL"); });
    row("a note without identity", u"is damaged"_s,
        [=](const StoreFixture &fixture) { execute(fixture, "UPDATE Note SET id = 'x' WHERE rowid = 7"); });
    row("an identity twice", u"is damaged"_s, [=](const StoreFixture &fixture) {
        execute(fixture, "UPDATE Note SET id = (SELECT upper(id) FROM Note WHERE rowid = 8) WHERE rowid = 7");
    });
    row("another program's database", u"database of another program"_s, makeOther);
    row("another program's database after a crash", u"database of another program"_s,
        [=](const StoreFixture &fixture) {
            makeOther(fixture);
            copyCrashed(fixture.path(), [](SQLite::Database &connection) {
                connection.exec("UPDATE Note SET text = 'theirs still'");
            });
        });
    row("a newer store", u"store version 2; this Vesk supports version 1"_s,
        [=](const StoreFixture &fixture) { execute(fixture, "PRAGMA user_version = 2"); });
    row("a newer store whose version is in the journal", u"store version 3"_s,
        [](const StoreFixture &fixture) {
            copyCrashed(fixture.path(),
                        [](SQLite::Database &connection) { connection.exec("PRAGMA user_version = 3"); });
        });
    row("nothing left but the journal", u"is missing or empty, but its journal"_s,
        [](const StoreFixture &fixture) {
            copyCrashed(fixture.path(),
                        [](SQLite::Database &connection) { connection.exec("DELETE FROM Note"); });
            QVERIFY(QFile::remove(fixture.path()));
        });
    row("an empty file and the journal", u"is missing or empty, but its journal"_s,
        [](const StoreFixture &fixture) {
            copyCrashed(fixture.path(),
                        [](SQLite::Database &connection) { connection.exec("DELETE FROM Note"); });
            QVERIFY(QFile::resize(fixture.path(), 0));
        });
}

void TestStoreFile::refuses()
{
    QFETCH(Preparation, prepare);
    QFETCH(QString, reason);
    makeStore();
    prepare(*m_fixture);
    const bool isFile = QFileInfo(m_fixture->path()).isFile();
    const std::optional<QByteArray> file = isFile ? bytesOf(m_fixture->path()) : std::nullopt;
    const std::optional<QByteArray> journal = bytesOf(m_fixture->journalPath());
    const mode_t mode = modeOf(m_fixture->path());

    QVERIFY(!m_fixture->open());
    QVERIFY2(m_fixture->error.contains(reason), qPrintable(m_fixture->error));
    QVERIFY(m_fixture->error.contains(m_fixture->path()) && m_fixture->error.endsWith(u'.'));
    const bool isDamage = reason.contains(u"damaged"_s) || reason == u"is not a database"_s;
    const bool isLoss = reason.contains(u"missing"_s);
    QCOMPARE(m_fixture->fault, isDamage ? StoreFault::Damaged
                               : isLoss ? StoreFault::Missing
                                        : StoreFault::Other);

    QCOMPARE(modeOf(m_fixture->path()), mode);
    QVERIFY((isFile ? bytesOf(m_fixture->path()) : std::nullopt) == file);
    QVERIFY(bytesOf(m_fixture->journalPath()) == journal);
}

void TestStoreFile::isNotCreatedAnewIfThereIsACopy_data()
{
    QTest::addColumn<bool>("isEmpty");
    QTest::addColumn<QString>("copy");
    QTest::newRow("missing") << false << u"Notes.copy"_s;
    QTest::newRow("empty") << true << u"Notes.copy"_s;
    QTest::newRow("missing, and only an older copy is left") << false << u"Notes.copy.2"_s;
    QTest::newRow("empty, and only an older copy is left") << true << u"Notes.copy.12"_s;
}

void TestStoreFile::isNotCreatedAnewIfThereIsACopy()
{
    QFETCH(bool, isEmpty);
    QFETCH(QString, copy);
    makeStore();
    const QString copyPath = QFileInfo(m_fixture->path()).dir().filePath(copy);
    QVERIFY(QFile::rename(m_fixture->path(), copyPath));
    if (isEmpty)
        QVERIFY(writeFile(m_fixture->path(), {}));
    const std::optional<QByteArray> bytes = bytesOf(copyPath);

    QVERIFY(!m_fixture->open());
    QCOMPARE(m_fixture->fault, StoreFault::Missing);
    QCOMPARE(readNotes(m_fixture->path()).error.fault, StoreFault::Missing);
    QCOMPARE(bytesOf(m_fixture->path()), isEmpty ? std::optional(QByteArray()) : std::nullopt);
    QVERIFY(bytesOf(copyPath) == bytes);
    const StoreAdvice advice = StoreAdvice::on(m_fixture->path(), m_fixture->fault, Date{});
    QVERIFY2(advice.message.contains(copyPath), qPrintable(advice.message));
    QCOMPARE(QProcess::execute(u"sh"_s, {u"-c"_s, advice.command}), 0);
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    QCOMPARE(m_fixture->store->notes().count(), 100);
    m_fixture->close();

    // To start over on purpose, move the copies away. A similarly named file is not a copy.
    QVERIFY(QFile::remove(m_fixture->path()));
    QVERIFY(QFile::rename(copyPath, copyPath + u".old"_s));
    QVERIFY(writeFile(copyPath, {}));
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    QVERIFY(m_fixture->store->notes().isEmpty());
}

void TestStoreFile::refusesWhatItMayNotWrite()
{
    makeStore();
    QCOMPARE(::chmod(m_fixture->nativePath().c_str(), 0400), 0);
    const std::optional<QByteArray> file = bytesOf(m_fixture->path());
    // Permissions do not bind root, so try to open the store as another user then.
    const bool isRoot = ::geteuid() == 0;
    if (isRoot) {
        const QString folder = QFileInfo(m_fixture->path()).path();
        const QString lock = folder + u"/Notes.lock"_s;
        for (const QString &path : {m_fixture->folder.path(), folder, m_fixture->path(), lock})
            QCOMPARE(::chown(QFile::encodeName(path).constData(), kNobody, kNobody), 0);
        if (::seteuid(kNobody) != 0)
            QSKIP("Cannot become a user without rights.");
    }
    const auto restore = qScopeGuard([isRoot] {
        if (isRoot && ::seteuid(0) != 0)
            qFatal("Cannot become root again.");
    });
    if (::access(m_fixture->nativePath().c_str(), F_OK) != 0)
        QSKIP("The temporary folder is not open to other users.");
    QVERIFY(!m_fixture->open());
    QVERIFY2(m_fixture->error.contains(u"cannot be written"_s), qPrintable(m_fixture->error));
    QVERIFY(bytesOf(m_fixture->path()) == file);
    QVERIFY(!QFile::exists(m_fixture->journalPath()));

    QCOMPARE(::chmod(m_fixture->nativePath().c_str(), 0200), 0);
    QVERIFY(!m_fixture->open());
    QVERIFY2(m_fixture->error.contains(u"cannot be read"_s), qPrintable(m_fixture->error));

    // A writable file is not enough: the journal must be created beside it.
    QCOMPARE(::chmod(m_fixture->nativePath().c_str(), 0600), 0);
    const QByteArray folder = QFile::encodeName(QFileInfo(m_fixture->path()).path());
    QCOMPARE(::chmod(folder.constData(), 0500), 0);
    QVERIFY(!m_fixture->open());
    QVERIFY2(m_fixture->error.contains(u"cannot be written (Permission denied)"_s),
             qPrintable(m_fixture->error));
    QCOMPARE(m_fixture->fault, StoreFault::Other);
    QCOMPARE(::chmod(folder.constData(), 0700), 0);
    QVERIFY(bytesOf(m_fixture->path()) == file);
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
}

void TestStoreFile::refusesALockedFile_data()
{
    QTest::addColumn<QString>("statement");
    QTest::newRow("writing") << u"BEGIN IMMEDIATE; DELETE FROM Note WHERE rowid = 1"_s;
    QTest::newRow("for itself") << u"PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE"_s;
    QTest::newRow("without a journal file") << u"PRAGMA journal_mode = DELETE; BEGIN EXCLUSIVE"_s;
}

void TestStoreFile::refusesALockedFile()
{
    QFETCH(QString, statement);
    makeStore();
    QProcess locker;
    locker.start(QCoreApplication::applicationFilePath(),
                 {QString::fromLatin1(kHoldLock), m_fixture->path(), statement});
    QVERIFY(locker.waitForReadyRead());
    QCOMPARE(locker.readAllStandardOutput(), QByteArray("locked\n"));
    const std::optional<QByteArray> file = bytesOf(m_fixture->path());
    const std::optional<QByteArray> journal = bytesOf(m_fixture->journalPath());

    QVERIFY(!m_fixture->open());
    QVERIFY2(m_fixture->error.contains(u"is in use by another program"_s), qPrintable(m_fixture->error));
    QCOMPARE(m_fixture->fault, StoreFault::Other);
    QVERIFY(bytesOf(m_fixture->path()) == file);
    QVERIFY(bytesOf(m_fixture->journalPath()) == journal);

    locker.closeWriteChannel();
    QVERIFY(locker.waitForFinished());
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    QCOMPARE(m_fixture->store->notes().count(), 100);
}

void TestStoreFile::refusesAPathThatCannotBeMade()
{
    MemoryClock clock;
    const QString file = m_fixture->folder.filePath(u"file"_s);
    QVERIFY(writeFile(file, "x"));
    const NotesStore::OpenResult result = NotesStore::open(file + u"/Vesk/Notes.store"_s, clock);
    QVERIFY(!result.store);
    QVERIFY2(result.error.contains(u"cannot be created"_s), qPrintable(result.error));
}

int main(int argc, char **argv)
{
    if (argc == 4 && qstrcmp(argv[1], kHoldLock) == 0)
        return holdLock(argv[2], argv[3]);
    QCoreApplication application(argc, argv);
    TestStoreFile test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_storefile.moc"
