// SPDX-License-Identifier: MIT
#include "app/dailycopy.h"
#include "app/storefailure.h"
#include "app/storewatch.h"
#include "notes/notesreader.h"
#include "platform/memory/memoryclock.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// The program makes the copy when it is due, and the message about a damaged store explains how to restore
/// it.
class TestDailyCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void damagedStoreIsRestoredFromItsCopy();
    void failedCopyIsReported();
    void lostStoreIsRewrittenUnprompted();
};

void TestDailyCopy::damagedStoreIsRestoredFromItsCopy()
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    const QString path = home.filePath(u"Vesk/Notes.store"_s);
    const StoreCopy copy(path);
    MemoryClock clock(std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now()));
    auto opened = NotesStore::open(path, clock);
    QVERIFY2(opened.store, qPrintable(opened.error));
    opened.store->insert(std::make_unique<Note>(clock, u"Water the lemon tree"_s));
    QVERIFY(opened.store->save());

    {
        const DailyCopy dailyCopy(path, QStringLiteral(VESK_APP), clock);
        clock.advance(1min);
        QVERIFY(!copy.madeAt());
        // Only the second check, because the store was written just before the first.
        clock.advance(20min);
        QTRY_VERIFY_WITH_TIMEOUT(copy.madeAt(), 30'000);
    }
    clock.advance(10min);
    QCOMPARE(clock.sleeperCount(), 0);

    opened.store.reset();
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite) && file.write("rubbish") > 0);
    file.close();
    opened = NotesStore::open(path, clock);
    QVERIFY(!opened.store);
    const MessageWindow::Content content = describeStoreFailure(opened, path, clock.now());
    QVERIFY2(content.message.contains(copy.path()), qPrintable(content.message));
    QCOMPARE(QProcess::execute(u"sh"_s, {u"-c"_s, content.details}), 0);
    opened = NotesStore::open(path, clock);
    QVERIFY2(opened.store, qPrintable(opened.error));
    QCOMPARE(opened.store->notes().first()->text(), u"Water the lemon tree"_s);

    // A store that merely cannot be opened must not be given up for its copy.
    const NotesStore::OpenResult locked{
        .store = nullptr, .error = u"It is in use."_s, .fault = StoreFault::Other};
    QVERIFY(describeStoreFailure(locked, path, clock.now()).details.isEmpty());
}

void TestDailyCopy::failedCopyIsReported()
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    const QString path = home.filePath(u"Vesk/Notes.store"_s);
    MemoryClock clock(std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now()));
    auto opened = NotesStore::open(path, clock);
    QVERIFY2(opened.store, qPrintable(opened.error));
    opened.store->insert(std::make_unique<Note>(clock, u"Water the lemon tree"_s));
    QVERIFY(opened.store->save());
    // Something else is in the way of the copy.
    const QString obstacle = StoreCopy(path).path() + u".new"_s;
    QVERIFY(QDir().mkpath(obstacle + u"/full"_s));

    const DailyCopy dailyCopy(path, QStringLiteral(VESK_APP), clock);
    clock.advance(21min);
    QTRY_VERIFY_WITH_TIMEOUT(!dailyCopy.problem().isEmpty(), 30'000);
    QVERIFY(QDir(obstacle).removeRecursively());
    clock.advance(10min);
    QTRY_VERIFY_WITH_TIMEOUT(dailyCopy.problem().isEmpty(), 30'000);
    QVERIFY(StoreCopy(path).madeAt());
}

/// The user changes nothing, and Vesk may be killed.
void TestDailyCopy::lostStoreIsRewrittenUnprompted()
{
    const QTemporaryDir home;
    const QString path = home.filePath(u"Vesk/Notes.store"_s);
    MemoryClock clock;
    const auto opened = NotesStore::open(path, clock);
    QVERIFY2(opened.store, qPrintable(opened.error));
    opened.store->insert(std::make_unique<Note>(clock, u"Water the lemon tree"_s));
    QVERIFY(opened.store->save());
    {
        const StoreWatch watch(*opened.store, clock);
        QVERIFY(QFile::remove(path));
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"deleted"_s));
        clock.advance(1min);
        QCOMPARE(readNotes(path).notes.size(), size_t{1});
    }
    clock.advance(1min);
    QCOMPARE(clock.sleeperCount(), 0);
}

QTEST_GUILESS_MAIN(TestDailyCopy)
#include "tst_dailycopy.moc"
