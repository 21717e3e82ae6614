// SPDX-License-Identifier: MIT
#include "notes/storeadvice.h"
#include "notes/storecopy.h"
#include "notes/storegenerations.h"
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
    void leavesTheLastSpaceToTheNotes();
    void keepsThreeGenerations();
    void isNotReplacedByAStoreThatHasFarFewer();
    void farFewer_data();
    void farFewer();
    void isDueOnceADayWhenItIsQuiet();
    void comesIntoPlaceByItsCommand();
    void itsCommandCanFailAtAnyStep();

private:
    /// The text of the newest note in each generation, newest generation first.
    [[nodiscard]] QStringList generations() const;
    /// Leaves only this many notes in the store.
    void shrinkTo(qsizetype count);

    /// Makes the file this old; returns whether that succeeded.
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

QStringList TestStoreCopy::generations() const
{
    QStringList texts;
    const QDir folder = QFileInfo(m_copy->path()).dir();
    // The names as users see them.
    for (const QString &name : folder.entryList({u"Notes.copy*"_s}, QDir::Files, QDir::Name)) {
        SQLite::Database copy(folder.filePath(name).toStdString());
        texts.append(QString::fromStdString(
            copy.execAndGet("SELECT text FROM Note ORDER BY rowid DESC LIMIT 1").getString()));
    }
    return texts;
}

void TestStoreCopy::shrinkTo(qsizetype count)
{
    while (m_fixture->store->notes().count() > count)
        m_fixture->store->remove(*m_fixture->store->notes().first());
    QVERIFY(m_fixture->store->save());
}

void TestStoreCopy::holdsWhatIsSavedWhileTheStoreIsOpen()
{
    QVERIFY(!m_copy->madeAt());
    QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
    QVERIFY(m_copy->madeAt());
    m_fixture->addNote(u"later"_s);
    QVERIFY(m_fixture->store->save());
    const QStringList saved = m_fixture->rows();
    QCOMPARE(QFileInfo(m_copy->path()).dir().entryList({u"*copy*"_s}, QDir::Files),
             QStringList{QFileInfo(m_copy->path()).fileName()});

    auto opened = NotesStore::open(m_copy->path(), m_fixture->clock);
    QVERIFY2(opened.store, qPrintable(opened.error));
    QCOMPARE(opened.store->notes().count(), saved.size() - 1);
    opened.store.reset();
    // The next copy replaces it.
    QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
}

void TestStoreCopy::isForItsUserOnly()
{
    const mode_t before = ::umask(0);
    const auto restore = qScopeGuard([before] { ::umask(before); });
    for (const mode_t mask : {0, 0777}) {
        ::umask(mask);
        QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(m_copy->path()).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t{0600});
    }
}

void TestStoreCopy::staysAsItIs_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("an index of the store is damaged") << u"index"_s;
    QTest::newRow("the store is empty") << u"empty"_s;
    QTest::newRow("the store is of a newer version") << u"newer"_s;
    QTest::newRow("the store is gone") << u"gone"_s;
    QTest::newRow("the disk is full") << u"full"_s;
}

void TestStoreCopy::staysAsItIs()
{
    QFETCH(const QString, kind);
    QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
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
        // A file size limit acts like a full disk.
        ::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{.rlim_cur = rlim_t(good.size() / 2), .rlim_max = limit.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    }
    QVERIFY(m_copy->make() != StoreCopy::Outcome::Made);
    QVERIFY(contentsOf(m_copy->path()) == good);
    QVERIFY(!QFile::exists(m_copy->path() + u".new"_s));
    QVERIFY(!QFile::exists(m_copy->path() + u".1"_s));
}

void TestStoreCopy::leavesTheLastSpaceToTheNotes()
{
    const qint64 size = QFileInfo(m_fixture->path()).size() + QFileInfo(m_fixture->journalPath()).size();
    constexpr qint64 kLeft = qint64{64} << 20;
    const auto makeWith = [this](std::optional<qint64> space) {
        return StoreCopy(m_fixture->path(), [space](const QString &) { return space; }).make();
    };
    QCOMPARE(makeWith(0), StoreCopy::Outcome::DiskTooFull);
    QCOMPARE(makeWith(size + kLeft - 1), StoreCopy::Outcome::DiskTooFull);
    QVERIFY(!m_copy->madeAt());
    QCOMPARE(makeWith(size + kLeft), StoreCopy::Outcome::Made);
    // If the file system does not report its free space, the copy is tried.
    QCOMPARE(makeWith(std::nullopt), StoreCopy::Outcome::Made);
}

void TestStoreCopy::keepsThreeGenerations()
{
    for (const QString &text : {u"1st"_s, u"2nd"_s, u"3rd"_s, u"4th"_s, u"5th"_s}) {
        m_fixture->addNote(text);
        QVERIFY(m_fixture->store->save());
        QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
    }
    QCOMPARE(generations(), (QStringList{u"5th"_s, u"4th"_s, u"3rd"_s}));

    // As after a crash between two renames: the next copy is offered, and nothing is lost.
    QVERIFY(QFile::remove(m_copy->path()));
    QVERIFY(m_copy->madeAt());
    const StoreAdvice advice = StoreAdvice::on(m_fixture->path(), StoreFault::Damaged, Date{});
    QVERIFY2(advice.command.contains(u"'Notes.copy.1'"_s), qPrintable(advice.command));
    QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
    QCOMPARE(generations(), (QStringList{u"5th"_s, u"4th"_s, u"3rd"_s}));

    // A damaged copy is not offered, and not kept for the number of its notes.
    QVERIFY(writeFile(m_copy->path(), "damage"));
    QVERIFY(StoreAdvice::on(m_fixture->path(), StoreFault::Damaged, Date{})
                .command.contains(u"'Notes.copy.1'"_s));
}

void TestStoreCopy::isNotReplacedByAStoreThatHasFarFewer()
{
    for (const QString &text : {u"1st"_s, u"2nd"_s, u"3rd"_s}) {
        m_fixture->addNote(text);
        QVERIFY(m_fixture->store->save());
        QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
    }
    shrinkTo(2);
    for (const QString &text : {u"a"_s, u"b"_s, u"c"_s, u"d"_s}) {
        m_fixture->addNote(text);
        QVERIFY(m_fixture->store->save());
        QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
    }
    // The small store has its three copies, and those with many more notes stay.
    QCOMPARE(generations(), (QStringList{u"d"_s, u"c"_s, u"b"_s, u"3rd"_s, u"2nd"_s, u"1st"_s}));
}

void TestStoreCopy::farFewer_data()
{
    QTest::addColumn<int>("records");
    QTest::addColumn<int>("before");
    QTest::addColumn<bool>("isFarFewer");
    QTest::newRow("half of ten deleted") << 5 << 10 << false;
    QTest::newRow("more than half of ten deleted") << 4 << 10 << true;
    QTest::newRow("four of five deleted") << 1 << 5 << false;
    QTest::newRow("five of six deleted") << 1 << 6 << true;
    QTest::newRow("half of a thousand") << 500 << 1000 << false;
    QTest::newRow("nearly all of a thousand") << 12 << 1000 << true;
    QTest::newRow("more than before") << 11 << 10 << false;
}

void TestStoreCopy::farFewer()
{
    QFETCH(int, records);
    QFETCH(int, before);
    QTEST(StoreGenerations::isFarFewer(records, before), "isFarFewer");
}

void TestStoreCopy::isDueOnceADayWhenItIsQuiet()
{
    const auto now = std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
    QVERIFY(!m_copy->isDue(now));
    QVERIFY(m_copy->isDue(now + 11min));
    m_fixture->close();
    QVERIFY(m_copy->isDue(now + 11min));
    QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
    QFile::remove(m_fixture->journalPath());
    // Nothing has been written since, however old the copy is.
    QVERIFY(!m_copy->isDue(now + 48h));
    QVERIFY(setAge(m_copy->path(), 23h));
    QVERIFY(setAge(m_fixture->path(), 1h));
    QVERIFY(!m_copy->isDue(now));
    QVERIFY(setAge(m_copy->path(), 25h));
    QVERIFY(m_copy->isDue(now));
    QVERIFY(setAge(m_fixture->path(), 5min));
    QVERIFY(!m_copy->isDue(now));
    // Dates from a clock that was wrong.
    QVERIFY(setAge(m_fixture->path(), -48h));
    QVERIFY(setAge(m_copy->path(), -72h));
    QVERIFY(m_copy->isDue(now));
    // A missing store is not copied.
    QVERIFY(QFile::remove(m_fixture->path()));
    QVERIFY(!m_copy->isDue(now));
}

void TestStoreCopy::comesIntoPlaceByItsCommand()
{
    // A folder whose name contains shell syntax.
    const QString folder = m_fixture->folder.filePath(u"it's $HOME `x`"_s);
    const QString path = folder + u"/Notes.store"_s;
    const auto add = [&](const QString &text) {
        const auto opened = NotesStore::open(path, m_fixture->clock);
        QVERIFY2(opened.store, qPrintable(opened.error));
        opened.store->insert(std::make_unique<Note>(m_fixture->clock, text));
        QVERIFY(opened.store->save());
    };
    add(u"kept"_s);
    QCOMPARE(StoreCopy(path).make(), StoreCopy::Outcome::Made);
    for (int round = 1; round <= 2; ++round) {
        QVERIFY(writeFile(path, "damage"));
        const auto refused = NotesStore::open(path, m_fixture->clock);
        QCOMPARE(refused.fault, StoreFault::Damaged);
        m_fixture->clock.advance(1min);
        const QString command = StoreAdvice::on(path, refused.fault, m_fixture->clock.now()).command;
        QCOMPARE(QProcess::execute(u"sh"_s, {u"-c"_s, command}), 0);
        add(u"written since"_s);
        // Pasted again by mistake, it does not touch what has been written since.
        QCOMPARE(QProcess::execute(u"sh"_s, {u"-c"_s, command}), 0);
        const auto opened = NotesStore::open(path, m_fixture->clock);
        QVERIFY2(opened.store, qPrintable(opened.error));
        QCOMPARE(opened.store->notes().count(), 2);
        // Each damaged store is still there.
        const QFileInfoList damaged =
            QDir(folder + u"/damaged"_s).entryInfoList(QDir::Dirs | QDir::NoDotAndDotDot);
        QCOMPARE(damaged.size(), round);
        for (const QFileInfo &each : damaged)
            QCOMPARE(contentsOf(each.filePath() + u"/Notes.store"_s), QByteArray("damage"));
    }
}

/// Each program that the command runs is made to fail in turn, in its first, second, … call.
void TestStoreCopy::itsCommandCanFailAtAnyStep()
{
    const QString path = m_fixture->path();
    QCOMPARE(m_copy->make(), StoreCopy::Outcome::Made);
    m_fixture->close();
    // Replaces the real programs: counts calls, and fails halfway through one of them.
    const QString bin = m_fixture->folder.filePath(u"bin"_s);
    for (const QString &program : {u"cp"_s, u"mv"_s, u"mkdir"_s, u"sync"_s}) {
        const QString script = u"#!/bin/sh\n"
                               "echo >>\"$COUNT\"\n"
                               "if [ $(wc -l <\"$COUNT\") = \"$FAILING\" ]; then\n"
                               "  [ %1 = cp ] && { shift $(($# - 1)); : >\"$1\"; }\n"
                               "  exit 1\nfi\n"
                               "PATH=$REAL exec %1 \"$@\"\n"_s.arg(program);
        QVERIFY(writeFile(bin + u'/' + program, script.toUtf8()));
        QVERIFY(QFile::setPermissions(bin + u'/' + program,
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }
    const QByteArray damage(5000, 'x');
    int failing = 1;
    for (bool isDone = false; !isDone; ++failing) {
        QVERIFY(writeFile(path, damage));
        QVERIFY(writeFile(m_fixture->journalPath(), "journal"));
        m_fixture->clock.advance(1min);
        const QString command = StoreAdvice::on(path, StoreFault::Damaged, m_fixture->clock.now()).command;
        const QString count = m_fixture->folder.filePath(u"count"_s);
        QFile::remove(count);
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"REAL"_s, environment.value(u"PATH"_s));
        environment.insert(u"PATH"_s, bin + u':' + environment.value(u"PATH"_s));
        environment.insert(u"COUNT"_s, count);
        environment.insert(u"FAILING"_s, QString::number(failing));
        shell.setProcessEnvironment(environment);
        shell.start(u"sh"_s, {u"-c"_s, command});
        QVERIFY(shell.waitForFinished());
        isDone = shell.exitCode() == 0;
        // Never an incomplete file, nor one that would count as a new store.
        const QByteArray there = contentsOf(path);
        QVERIFY(there == damage || there == contentsOf(m_copy->path()) || !QFile::exists(path));
        const StoreFault fault = NotesStore::open(path, m_fixture->clock).fault;
        QVERIFY(there == contentsOf(m_copy->path()) || fault == StoreFault::Damaged
                || fault == StoreFault::Missing);
        // Running the same command again completes it.
        QCOMPARE(QProcess::execute(u"sh"_s, {u"-c"_s, command}), 0);
        const auto opened = NotesStore::open(path, m_fixture->clock);
        QVERIFY2(opened.store, qPrintable(opened.error));
        QCOMPARE(opened.store->notes().count(), 300);
    }
    QVERIFY2(failing > 6, "Too few steps were made to fail");
}

QTEST_GUILESS_MAIN(TestStoreCopy)
#include "tst_storecopy.moc"
