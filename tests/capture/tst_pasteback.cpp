// SPDX-License-Identifier: MIT
#include "capturedesktop.h"

#include "capture/pasteback.h"
#include "platform/memory/memoryapplication.h"

#include <QCoroTask>

#include <QTest>

#include <functional>

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

Q_DECLARE_METATYPE(std::function<void(World &)>)

/// When and where a text is pasted.
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
    void textThatIsNotPastedIsReported_data();
    void textThatIsNotPastedIsReported();
    void twoTextsInARowAreNotPastedTwice();
    void programMayEndWhileWaiting();
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

/// Another window of the desktop may have the focus for a moment, or for good.
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
        QCOMPARE(world.poster.posted(), QList{comes ? Command::Paste : Command::PasteUnlessTerminal});
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

void TestPasteBack::textThatIsNotPastedIsReported_data()
{
    using Refusal = PasteBack::Refusal;
    QTest::addColumn<std::function<void(World &)>>("event");
    QTest::addColumn<QList<Command>>("posted");
    QTest::addColumn<QList<Refusal>>("refusals");
    const auto row = [](const char *name, const std::function<void(World &)> &event,
                        const QList<Command> &posted, const QList<Refusal> &refusals) {
        QTest::newRow(name) << event << posted << refusals;
    };
    row("the window is there", [](World &) {}, {Command::Paste}, {});
    row("the window has closed", [](World &world) { world.application.closePreviousWindow(); }, {},
        {Refusal::WindowClosed});
    row("the window closes at the last moment",
        [](World &world) {
            world.poster.setDelay(world.clock, 50ms);
            world.clock.advance(90ms);
            world.application.closePreviousWindow();
        },
        {}, {Refusal::WindowClosed});
    row("another window gets the keyboard",
        [](World &world) {
            world.poster.setDelay(world.clock, 50ms);
            world.clock.advance(90ms);
            world.poster.setTarget(EventPoster::Target{2});
        },
        {}, {Refusal::NotTaken});
    row("the application does not take the keys", [](World &world) { world.poster.setAllowed(false); }, {},
        {Refusal::NotTaken});
}

void TestPasteBack::textThatIsNotPastedIsReported()
{
    using Refusal = PasteBack::Refusal;
    QFETCH(const std::function<void(World &)>, event);
    World world;
    QList<Refusal> refusals;
    QObject::connect(world.pasteBack.get(), &PasteBack::refused,
                     [&refusals](Refusal refusal) { refusals.append(refusal); });
    world.bringForward(4711);
    world.pasteBack->pasteIntoPreviousApp(u"text"_s);
    event(world);
    world.clock.advance(5s);
    QTEST(world.poster.posted(), "posted");
    QTEST(refusals, "refusals");
    QCOMPARE(QCoro::waitFor(world.pasteboard.string()), u"text"_s);
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

void TestPasteBack::programMayEndWhileWaiting()
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
