// SPDX-License-Identifier: MIT
#include "notes/storecopy.h"
#include "storefixture.h"
#include "virtualdesktop/files.h"

#include <QDateTime>
#include <QProcess>
#include <QScopeGuard>
#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

class TestStoreCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void holdsWhatIsSavedWhileTheStoreIsOpen();
    void isForItsUserOnly();
    void staysAsItIs_data();
    void staysAsItIs();
    void isDueOnceADayWhenItIsQuiet();
    void comesIntoPlaceByItsCommand();

private:
    /// Gives the file this age, and returns whether it could.
    [[nodiscard]] static bool setAge(const QString &path, std::chrono::seconds age);

    std::unique_ptr<StoreFixture> m_fixture;
    std::unique_ptr<StoreCopy> m_copy;
};

void TestStoreCopy::init()
{
    m_fixture = std::make_unique<StoreFixture>();
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    m_copy = std::make_unique<StoreCopy>(m_fixture->path());
    for (int i = 0; i < 300; ++i)
        m_fixture->addNote(QString::number(i).repeated(200));
    QVERIFY(m_fixture->store->save());
}

bool TestStoreCopy::setAge(const QString &path, std::chrono::seconds age)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite)
           && file.setFileTime(QDateTime::currentDateTime().addSecs(-age.count()),
                               QFileDevice::FileModificationTime);
}

void TestStoreCopy::holdsWhatIsSavedWhileTheStoreIsOpen()
{
    QVERIFY(!m_copy->madeAt());
    QVERIFY(m_copy->make());
    QVERIFY(m_copy->madeAt());
    m_fixture->addNote(u"later"_s);
    QVERIFY(m_fixture->store->save());
    const QStringList saved = m_fixture->rows();
    QCOMPARE(QFileInfo(m_copy->path()).dir().entryList({u"*copy*"_s}, QDir::Files),
             QStringList{QFileInfo(m_copy->path()).fileName()});

    const auto opened = NotesStore::open(m_copy->path(), m_fixture->clock);
    QVERIFY2(opened.store, qPrintable(opened.error));
    QCOMPARE(opened.store->notes().count(), saved.size() - 1);
    // And it is replaced by the next.
    QVERIFY(m_copy->make());
}

void TestStoreCopy::isForItsUserOnly()
{
    const mode_t before = ::umask(0);
    const auto restore = qScopeGuard([before] { ::umask(before); });
    for (const mode_t mask : {0, 0777}) {
        ::umask(mask);
        QVERIFY(m_copy->make());
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(m_copy->path()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t{0600});
    }
}

void TestStoreCopy::staysAsItIs_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("an index of the store is damaged") << u"index"_s;
    QTest::newRow("the store holds nothing") << u"empty"_s;
    QTest::newRow("the store is of a newer version") << u"newer"_s;
    QTest::newRow("the store is gone") << u"gone"_s;
    QTest::newRow("the disk is full") << u"full"_s;
}

void TestStoreCopy::staysAsItIs()
{
    QFETCH(const QString, kind);
    QVERIFY(m_copy->make());
    const QByteArray good = contentsOf(m_copy->path());
    m_fixture->close();
    rlimit limit = {};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    const auto restore = qScopeGuard([limit] { ::setrlimit(RLIMIT_FSIZE, &limit); });
    if (kind == u"index"_s) {
        constexpr qint64 kPage = 4096;
        const qint64 page =
            m_fixture->outsider()
                .execAndGet("SELECT rootpage FROM sqlite_schema WHERE name = 'sqlite_autoindex_Prompt_1'")
                .getInt64();
        QFile file(m_fixture->path());
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek((page - 1) * kPage));
        QCOMPARE(file.write(QByteArray(kPage, 'x')), kPage);
    } else if (kind == u"empty"_s) {
        m_fixture->outsider(SQLite::OPEN_READWRITE).exec("DELETE FROM Note");
    } else if (kind == u"newer"_s) {
        m_fixture->outsider(SQLite::OPEN_READWRITE).exec("PRAGMA user_version = 2");
    } else if (kind == u"gone"_s) {
        QVERIFY(QFile::remove(m_fixture->path()));
    } else {
        // A file that may not grow answers as a full disk does.
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{.rlim_cur = rlim_t(good.size() / 2), .rlim_max = limit.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    QVERIFY(!m_copy->make());
    QVERIFY(contentsOf(m_copy->path()) == good);
    QVERIFY(!QFile::exists(m_copy->path() + u".new"_s));
}

void TestStoreCopy::isDueOnceADayWhenItIsQuiet()
{
    const auto now = std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
    QVERIFY(!m_copy->isDue(now));
    QVERIFY(m_copy->isDue(now + 11min));
    m_fixture->close();
    QVERIFY(m_copy->isDue(now + 11min));
    QVERIFY(m_copy->make());
    QFile::remove(m_fixture->journalPath());
    // Nothing has been written since, whatever the age of the copy.
    QVERIFY(!m_copy->isDue(now + 48h));
    QVERIFY(setAge(m_copy->path(), 23h));
    QVERIFY(setAge(m_fixture->path(), 1h));
    QVERIFY(!m_copy->isDue(now));
    QVERIFY(setAge(m_copy->path(), 25h));
    QVERIFY(m_copy->isDue(now));
    QVERIFY(setAge(m_fixture->path(), 5min));
    QVERIFY(!m_copy->isDue(now));
    // Dates of a clock that went wrong.
    QVERIFY(setAge(m_fixture->path(), -48h));
    QVERIFY(setAge(m_copy->path(), -72h));
    QVERIFY(m_copy->isDue(now));
    // What is not there is not copied.
    QVERIFY(QFile::remove(m_fixture->path()));
    QVERIFY(!m_copy->isDue(now));
}

void TestStoreCopy::comesIntoPlaceByItsCommand()
{
    // A folder that a shell has to be told of with care.
    const QString folder = m_fixture->folder.filePath(u"it's $HOME `x`"_s);
    const QString path = folder + u"/Notes.store"_s;
    {
        const auto opened = NotesStore::open(path, m_fixture->clock);
        QVERIFY2(opened.store, qPrintable(opened.error));
        opened.store->insert(std::make_unique<Note>(m_fixture->clock, u"kept"_s));
        QVERIFY(opened.store->save());
        QVERIFY(StoreCopy(path).make());
    }
    for (int round = 1; round <= 2; ++round) {
        QVERIFY(writeFile(path, "damage"));
        const auto refused = NotesStore::open(path, m_fixture->clock);
        QVERIFY(!refused.store && refused.isDamaged);
        QCOMPARE(QProcess::execute(u"sh"_s, {u"-c"_s, StoreCopy(path).restoringCommand()}), 0);
        const auto opened = NotesStore::open(path, m_fixture->clock);
        QVERIFY2(opened.store, qPrintable(opened.error));
        QCOMPARE(opened.store->notes().first()->text(), u"kept"_s);
        // What was damaged is still there, each time.
        QCOMPARE(QDir(folder + u"/damaged"_s).entryList(QDir::Files).size(), round);
    }
}

QTEST_GUILESS_MAIN(TestStoreCopy)
#include "tst_storecopy.moc"
