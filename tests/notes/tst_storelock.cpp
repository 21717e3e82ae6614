// SPDX-License-Identifier: MIT
#include "storefixture.h"
#include "virtualdesktop/files.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

constexpr auto kHold = "--hold";

/// Runs this program as another one that has the store open, until its input ends.
int hold(const char *path, bool isSession)
{
    MemoryClock clock;
    const auto opened = NotesStore::open(QString::fromUtf8(path), clock,
                                         isSession ? NotesStore::Use::Session : NotesStore::Use::Command);
    std::puts(opened.store ? "open" : qPrintable(opened.error));
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}

} // namespace

/// Only one process at a time has the store, whatever bus or machine it runs on.
class TestStoreLock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<StoreFixture>(); }
    void refusesASecondSession();
    void waitsForACommandAndNotForASession();
    void isFreeAfterACrash();

private:
    void startHolder(bool isSession);

    std::unique_ptr<StoreFixture> m_fixture;
    QProcess m_holder;
};

void TestStoreLock::startHolder(bool isSession)
{
    m_holder.start(QCoreApplication::applicationFilePath(),
                   {QString::fromLatin1(kHold), m_fixture->path(), QString::number(int(isSession))});
    QVERIFY(m_holder.waitForReadyRead());
    QCOMPARE(m_holder.readAllStandardOutput(), QByteArray("open\n"));
}

void TestStoreLock::refusesASecondSession()
{
    startHolder(true);
    const QDir folder = QFileInfo(m_fixture->path()).dir();
    const QStringList files = folder.entryList(QDir::Files);
    const QByteArray before = contentsOf(m_fixture->path());

    QVERIFY(!m_fixture->open());
    QCOMPARE(m_fixture->fault, StoreFault::HeldElsewhere);
    QVERIFY2(m_fixture->error.contains(u"another session"_s)
                 && m_fixture->error.contains(
                     u"process %1 on %2"_s.arg(m_holder.processId()).arg(QSysInfo::machineHostName())),
             qPrintable(m_fixture->error));
    // The other process has created its own files, and this one none.
    QCOMPARE(folder.entryList(QDir::Files), files);
    QCOMPARE(contentsOf(m_fixture->path()), before);

    m_holder.closeWriteChannel();
    QVERIFY(m_holder.waitForFinished());
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
    // The same process cannot open it twice either.
    QCOMPARE(NotesStore::open(m_fixture->path(), m_fixture->clock).fault, StoreFault::HeldElsewhere);
}

void TestStoreLock::waitsForACommandAndNotForASession()
{
    constexpr auto kLong = 10min;
    startHolder(false);
    // Ends while this process is waiting.
    m_holder.closeWriteChannel();
    const auto opened =
        NotesStore::open(m_fixture->path(), m_fixture->clock, NotesStore::Use::Command, kLong);
    QVERIFY2(opened.store, qPrintable(opened.error));
    QVERIFY(m_holder.waitForFinished());

    // Waiting for this one would last until the test is killed.
    const auto second =
        NotesStore::open(m_fixture->path() + u".other"_s, m_fixture->clock, NotesStore::Use::Session);
    QVERIFY(second.store);
    QCOMPARE(
        NotesStore::open(m_fixture->path() + u".other"_s, m_fixture->clock, NotesStore::Use::Command, kLong)
            .fault,
        StoreFault::HeldElsewhere);
}

void TestStoreLock::isFreeAfterACrash()
{
    startHolder(true);
    m_holder.kill();
    QVERIFY(m_holder.waitForFinished());
    QVERIFY2(m_fixture->open(), qPrintable(m_fixture->error));
}

int main(int argc, char **argv)
{
    if (argc == 4 && qstrcmp(argv[1], kHold) == 0)
        return hold(argv[2], argv[3][0] == '1');
    QCoreApplication application(argc, argv);
    TestStoreLock test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_storelock.moc"
