// SPDX-License-Identifier: MIT
#include "capturedesktop.h"

#include "capture/pasteback.h"
#include "platform/memory/memoryapplication.h"

#include <QCoroTask>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

using Command = EventPoster::Command;

struct World : CaptureDesktop
{
    MemoryApplication application;
    std::unique_ptr<PasteBack> pasteBack =
        std::make_unique<PasteBack>(PasteBack::Needs{.clock = clock,
                                                     .application = application,
                                                     .workspace = workspace,
                                                     .pasteboard = pasteboard,
                                                     .watcher = watcher,
                                                     .poster = poster});

    World()
    {
        watcher.start();
        bringForward(QCoreApplication::applicationPid());
    }
};

} // namespace

/// When, and into what, a text is pasted.
class TestPasteBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pastesOnceAnotherApplicationIsFrontmost();
    void pastedTextIsNotARecentCopy();
    void windowThatTheUserLeftIsWaitedFor();
    void nothingIsPastedWhereTheUserWentMeanwhile();
    void nothingIsPastedIntoVesk_data();
    void nothingIsPastedIntoVesk();
    void twoTextsInARowAreNotPastedTwice();
    void endOfTheProgramWhileWaiting();
};

void TestPasteBack::pastesOnceAnotherApplicationIsFrontmost()
{
    World world;
    world.pasteBack->pasteIntoPreviousApp(u"text"_s);
    QVERIFY(world.application.isHidden());
    world.clock.advance(990ms);
    world.bringForward(4711);
    world.clock.advance(69ms);
    QVERIFY(world.poster.posted().isEmpty());
    world.clock.advance(1ms);
    QCOMPARE(world.poster.posted(), QList{Command::Paste});
    world.clock.advance(10s);
    QCOMPARE(world.poster.posted().size(), 1);
    QCOMPARE(QCoro::waitFor(world.pasteboard.string()), u"text"_s);
}

void TestPasteBack::pastedTextIsNotARecentCopy()
{
    World world;
    world.pasteBack->pasteIntoPreviousApp(u"text"_s);
    world.bringForward(4711);
    world.clock.advance(1s);
    QCOMPARE(QCoro::waitFor(world.watcher.recentCopy(8s)), std::optional<QString>());
}

/// Another window of the desktop may have the keyboard for a moment, or for good.
void TestPasteBack::windowThatTheUserLeftIsWaitedFor()
{
    for (const bool comes : {true, false}) {
        World world;
        world.application.setAway(false);
        world.pasteBack->pasteIntoPreviousApp(u"text"_s);
        world.bringForward(4711);
        world.clock.advance(500ms);
        world.application.setAway(comes);
        world.clock.advance(85ms);
        QCOMPARE(world.poster.posted().size(), comes ? 1 : 0);
        world.clock.advance(475ms);
        QCOMPARE(world.poster.posted().size(), 1);
    }
}

void TestPasteBack::nothingIsPastedWhereTheUserWentMeanwhile()
{
    World world;
    world.poster.setDelay(world.clock, 50ms);
    world.pasteBack->pasteIntoPreviousApp(u"text"_s);
    world.bringForward(4711);
    world.clock.advance(90ms);
    world.application.setAway(false);
    world.clock.advance(5s);
    QVERIFY(world.poster.posted().isEmpty());
}

void TestPasteBack::nothingIsPastedIntoVesk_data()
{
    QTest::addColumn<int>("awayAfter");
    QTest::addColumn<int>("backAfter");
    QTest::newRow("nobody takes the keyboard") << 5000 << 5000;
    QTest::newRow("somebody takes it too late") << 1070 << 5000;
    QTest::newRow("the user comes back at once") << 100 << 150;
}

void TestPasteBack::nothingIsPastedIntoVesk()
{
    QFETCH(const int, awayAfter);
    QFETCH(const int, backAfter);
    World world;
    world.pasteBack->pasteIntoPreviousApp(u"text"_s);
    world.clock.advance(std::chrono::milliseconds{awayAfter});
    world.bringForward(4711);
    world.clock.advance(std::chrono::milliseconds{backAfter - awayAfter});
    world.bringForward(QCoreApplication::applicationPid());
    world.clock.advance(5s);
    QVERIFY(world.poster.posted().isEmpty());
    QCOMPARE(world.clock.sleeperCount(), 0);
}

void TestPasteBack::twoTextsInARowAreNotPastedTwice()
{
    World world;
    world.pasteBack->pasteIntoPreviousApp(u"one"_s);
    world.clock.advance(50ms);
    world.pasteBack->pasteIntoPreviousApp(u"two"_s);
    world.bringForward(4711);
    world.clock.advance(5s);
    QCOMPARE(world.poster.posted(), QList{Command::Paste});
}

void TestPasteBack::endOfTheProgramWhileWaiting()
{
    World world;
    world.pasteBack->pasteIntoPreviousApp(u"one"_s);
    world.bringForward(4711);
    world.pasteBack.reset();
    world.clock.advance(5s);
    QVERIFY(world.poster.posted().isEmpty());
}

QTEST_MAIN(TestPasteBack)

#include "tst_pasteback.moc"
