// SPDX-License-Identifier: MIT
#include "storefixture.h"

#include "notes/storefolder.h"
#include "notes/storetrouble.h"
#include "virtualdesktop/files.h"

#include <QTest>

#include <sqlite3.h>

#include <cerrno>
#include <map>

using namespace Qt::StringLiterals;
using namespace vesk;

namespace {

/// The real disk without shared memory, like a network or simple file system.
struct DiskWithoutSharedMemory
{
    DiskWithoutSharedMemory()
        : real(sqlite3_vfs_find(nullptr))
        , vfs(*real)
    {
        vfs.zName = "plain";
        vfs.xOpen = [](sqlite3_vfs *, sqlite3_filename name, sqlite3_file *file, int flags, int *outFlags) {
            sqlite3_vfs *next = sqlite3_vfs_find("unix");
            const int result = next->xOpen(next, name, file, flags, outFlags);
            if (result == SQLITE_OK && file->pMethods) {
                // A journal has different methods than a database.
                static std::map<const sqlite3_io_methods *, sqlite3_io_methods> all;
                sqlite3_io_methods &methods = all.try_emplace(file->pMethods, *file->pMethods).first->second;
                methods.xShmMap = [](sqlite3_file *, int, int, int, void volatile **) {
                    return SQLITE_IOERR_SHMMAP;
                };
                file->pMethods = &methods;
            }
            return result;
        };
        sqlite3_vfs_register(&vfs, 1);
    }
    ~DiskWithoutSharedMemory()
    {
        sqlite3_vfs_unregister(&vfs);
        sqlite3_vfs_register(real, 1);
    }
    Q_DISABLE_COPY_MOVE(DiskWithoutSharedMemory)

    sqlite3_vfs *real;
    sqlite3_vfs vfs;
};

} // namespace

/// How changes reach the file if something that a local disk offers does not work, and how SQLite's errors
/// are interpreted.
class TestStoreJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void worksWithoutSharedMemory();
    void namesTheTrouble_data();
    void namesTheTrouble();
    void deletedWordsAreNotInTheFile();
};

void TestStoreJournal::worksWithoutSharedMemory()
{
    StoreFixture fixture;
    QVERIFY2(fixture.open(), qPrintable(fixture.error));
    fixture.addNote(u"written with a log"_s);
    QVERIFY(fixture.store->save());
    QVERIFY(QFile::exists(fixture.journalPath()));
    fixture.close();
    {
        const DiskWithoutSharedMemory disk;
        QVERIFY2(fixture.open(), qPrintable(fixture.error));
        QCOMPARE(fixture.store->notes().count(), 1);
        fixture.addNote(u"written without"_s);
        QVERIFY2(fixture.store->save(), qPrintable(fixture.store->problem()));
        QVERIFY(!QFile::exists(fixture.journalPath()));
        // Others can read alongside it.
        QCOMPARE(fixture.rows().size(), 2);
        fixture.addNote(u"written after that"_s);
        QVERIFY2(fixture.store->save(), qPrintable(fixture.store->problem()));
        fixture.close();
    }
    QVERIFY2(fixture.open(), qPrintable(fixture.error));
    QCOMPARE(fixture.store->notes().count(), 3);
    QCOMPARE(fixture.integrity(), u"ok"_s);
}

void TestStoreJournal::namesTheTrouble_data()
{
    using Kind = StoreTrouble::Kind;
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("systemError");
    QTest::addColumn<Kind>("kind");
    const auto row = [](const char *name, int code, const char *message, int systemError, Kind kind) {
        QTest::newRow(name) << code << QString::fromLatin1(message) << systemError << kind;
    };
    row("corrupt", SQLITE_CORRUPT, "", 0, Kind::Damaged);
    row("corrupt index", SQLITE_CORRUPT_INDEX, "", 0, Kind::Damaged);
    row("not a database", SQLITE_NOTADB, "", 0, Kind::NotADatabase);
    row("table missing", SQLITE_ERROR, "no such table: Note", 0, Kind::Damaged);
    row("another error", SQLITE_ERROR, "cannot start a transaction", 0, Kind::Other);
    row("busy", SQLITE_BUSY, "", 0, Kind::InUse);
    row("busy while another recovers", SQLITE_BUSY_RECOVERY, "", 0, Kind::InUse);
    row("full", SQLITE_FULL, "", 0, Kind::DiskFull);
    row("no space for the shared memory", SQLITE_IOERR_SHMSIZE, "", ENOSPC, Kind::DiskFull);
    row("no space on writing", SQLITE_IOERR_WRITE, "", ENOSPC, Kind::DiskFull);
    row("quota", SQLITE_IOERR_WRITE, "", EDQUOT, Kind::QuotaUsedUp);
    row("read-only file system", SQLITE_CANTOPEN, "", EROFS, Kind::ReadOnly);
    row("missing rights", SQLITE_CANTOPEN, "", EACCES, Kind::NotAllowed);
    row("read-only", SQLITE_READONLY, "", 0, Kind::ReadOnly);
    row("the disk cannot read", SQLITE_IOERR_READ, "", EIO, Kind::Other);
    row("no memory", SQLITE_NOMEM, "", 0, Kind::Other);
    row("too long", SQLITE_TOOBIG, "", 0, Kind::RecordRefused);
    row("constraint", SQLITE_CONSTRAINT_TRIGGER, "", 0, Kind::RecordRefused);
}

void TestStoreJournal::namesTheTrouble()
{
    using Kind = StoreTrouble::Kind;
    QFETCH(int, code);
    QFETCH(QString, message);
    QFETCH(int, systemError);
    QFETCH(Kind, kind);
    const QTemporaryDir folder;
    QCOMPARE(StoreTrouble::of(code, message, systemError, folder.path()).kind, kind);
    // A page that the integrity check could not read does not count as damage.
    if (code == SQLITE_IOERR_READ) {
        for (const QString &report : {u"Tree 2 page 3: unable to get the page. error code=%1"_s.arg(code),
                                      u"On tree page 4 cell 0: failed to get page 14"_s})
            QCOMPARE(StoreTrouble::ofCheck(report, folder.path()).kind, Kind::Other);
        QCOMPARE(StoreTrouble::ofCheck(u"row 1 missing from index"_s, folder.path()).kind, Kind::Damaged);
    }
}

void TestStoreJournal::deletedWordsAreNotInTheFile()
{
    StoreFixture fixture;
    QVERIFY2(fixture.open(), qPrintable(fixture.error));
    fixture.addNote(u"kept"_s);
    Note &deleted = fixture.addNote(u"forget these words "_s.repeated(500));
    Note &changed = fixture.addNote(u"and those words"_s);
    QVERIFY(fixture.store->save());
    fixture.store->remove(deleted);
    changed.setText(u"other"_s);
    QVERIFY(fixture.store->save());
    // Closing moves the journal into the file.
    fixture.close();
    const QByteArray bytes = contentsOf(fixture.path());
    QVERIFY(bytes.contains("kept"));
    QVERIFY(!bytes.contains("forget these") && !bytes.contains("those words"));
}

QTEST_GUILESS_MAIN(TestStoreJournal)
#include "tst_storejournal.moc"
