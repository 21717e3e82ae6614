// SPDX-License-Identifier: MIT
#include "capturedesktop.h"

#include "capture/syntheticcopy.h"

#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

using Command = EventPoster::Command;

/// An application that is asked to copy, and a user who has something on the pasteboard.
struct World : CaptureDesktop
{
    std::unique_ptr<SyntheticCopy> synthetic =
        std::make_unique<SyntheticCopy>(SyntheticCopy::Needs{.clock = clock,
                                                             .workspace = workspace,
                                                             .pasteboard = pasteboard,
                                                             .watcher = watcher,
                                                             .poster = poster,
                                                             .tap = tap});
    const QList<PasteboardItem> users{
        PasteboardItem{PasteboardData{.type = u"text/html"_s, .data = "<b>old</b>"},
                       PasteboardData{.type = MemoryPasteboard::kTextType, .data = "old"}},
        PasteboardItem{PasteboardData{.type = u"image/png"_s, .data = "png"}}};
    bool isAnswered = false;
    std::optional<QString> answer;

    World()
    {
        watcher.start();
        pasteboard.writeObjects(users);
    }

    void ask()
    {
        isAnswered = false;
        synthetic->copySelection().then([this](std::optional<QString> text) {
            isAnswered = true;
            answer = text;
        });
    }

    /// What the user has on the pasteboard then.
    QList<PasteboardItem> copy(const QString &text)
    {
        pasteboard.setString(text);
        return pasteboard.items();
    }
};

Pasteboard::Origin by(qint64 process, std::optional<std::chrono::milliseconds> delay = {})
{
    return {.processIdentifier = process, .delay = delay};
}

/// Something that happens after the application has ignored the keys.
using Event = std::function<void(World &)>;

} // namespace

Q_DECLARE_METATYPE(Event)

/// What is read by letting the application copy, and what the user finds on the pasteboard after.
class TestSyntheticCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copies_data();
    void copies();
    void emptyPasteboardIsEmptyAgain();
    void contentThatCannotBeSavedIsNotReplaced();
    void pastedTextStaysVesksOwn();
    void ignoredKeysLeaveThePasteboardAlone();
    void refusedKeysAreNotWaitedFor();
    void userCopiesBeforeTheRestore();
    void copyAnnouncedTwiceIsRestored();
    void copyDuringTheWaitForTheKeysIsTheUsers();
    void copyFromElsewhereIsNotTheAnswer();
    void lateCopyBringsBackTheNewest();
    void secondQuestionMeanwhileIsRefused();
    void lateCopy_data();
    void lateCopy();
    void vesksOwnWritingIsNotUndone();
    void deafPlatformUndoesNothing();
    void lateCopyAnswersTheNextQuestion();
    void endOfTheProgramWhileWaiting();
};

void TestSyntheticCopy::copies_data()
{
    QTest::addColumn<int>("after");
    QTest::addColumn<QString>("copied");
    QTest::addColumn<QString>("expected");
    QTest::newRow("at once") << 0 << u" word\n"_s << u"word"_s;
    QTest::newRow("at the last look") << 490 << u"word"_s << u"word"_s;
    QTest::newRow("only white space") << 10 << u" \n\u00a0"_s << u"-"_s;
    QTest::newRow("a picture") << 10 << QString() << u"-"_s;
}

void TestSyntheticCopy::copies()
{
    QFETCH(const int, after);
    QFETCH(const QString, copied);
    QFETCH(const QString, expected);
    World world;
    const auto write = [&] {
        if (copied.isNull())
            world.writePicture();
        else
            world.pasteboard.setString(copied);
    };
    if (after == 0)
        world.poster.setResponse([&write](Command) { write(); });
    world.ask();
    if (after > 0) {
        world.clock.advance(std::chrono::milliseconds{after});
        write();
    }
    world.clock.advance(50ms);
    QVERIFY(world.isAnswered);
    QCOMPARE(world.answer.value_or(u"-"_s), expected);
    QCOMPARE(world.pasteboard.items(), world.users);
    QCOMPARE(world.poster.posted(), QList{Command::Copy});
}

void TestSyntheticCopy::contentThatCannotBeSavedIsNotReplaced()
{
    World world;
    world.pasteboard.setSecret(true);
    world.poster.setResponse([&world](Command) { world.pasteboard.setString(u"word"_s); });
    world.ask();
    world.clock.advance(1s);
    QVERIFY(world.isAnswered);
    QVERIFY(!world.answer);
    QVERIFY(world.poster.posted().isEmpty());
    QCOMPARE(world.pasteboard.items(), world.users);
}

void TestSyntheticCopy::emptyPasteboardIsEmptyAgain()
{
    World world;
    world.pasteboard.clearContents();
    world.poster.setResponse([&world](Command) { world.pasteboard.setString(u"word"_s); });
    world.ask();
    world.clock.advance(50ms);
    QCOMPARE(world.answer, u"word"_s);
    QVERIFY(world.pasteboard.items().isEmpty());
}

void TestSyntheticCopy::pastedTextStaysVesksOwn()
{
    World world;
    world.pasteboard.setString(u"pasted by Vesk"_s);
    world.watcher.markOwn();
    world.poster.setResponse([&world](Command) { world.writePicture(); });
    world.ask();
    world.clock.advance(50ms);
    QVERIFY(world.isAnswered);
    QVERIFY(world.watcher.standing().isOwn);
}

void TestSyntheticCopy::ignoredKeysLeaveThePasteboardAlone()
{
    World world;
    const qint64 before = world.pasteboard.changeCount();
    world.ask();
    world.clock.advance(499ms);
    QVERIFY(!world.isAnswered);
    world.clock.advance(1ms);
    QVERIFY(world.isAnswered);
    QVERIFY(!world.answer);
    world.clock.advance(1min);
    QCOMPARE(world.pasteboard.changeCount(), before);
}

void TestSyntheticCopy::refusedKeysAreNotWaitedFor()
{
    World world;
    world.poster.setAllowed(false);
    world.ask();
    QVERIFY(world.isAnswered);
    QVERIFY(!world.answer);
    // No copy was asked for, so this one is the user's.
    world.pasteboard.setString(u"the user's"_s);
    world.clock.advance(1s);
    QCOMPARE(world.pasteboard.items().size(), 1);
}

void TestSyntheticCopy::userCopiesBeforeTheRestore()
{
    World world;
    world.poster.setResponse([&world](Command) { world.pasteboard.setString(u"word"_s); });
    world.pasteboard.setDelay(world.clock, 40ms);
    world.ask();
    // The saving takes 40 ms, then the application copies; reading begins 25 ms later.
    world.clock.advance(80ms);
    const QList<PasteboardItem> copied = world.copy(u"the user's"_s);
    world.clock.advance(1s);
    QCOMPARE(world.answer, u"word"_s);
    QCOMPARE(world.pasteboard.items(), copied);
}

void TestSyntheticCopy::copyAnnouncedTwiceIsRestored()
{
    World world;
    world.poster.setResponse([&world](Command) { world.pasteboard.setString(u"word"_s); });
    world.ask();
    world.clock.advance(10ms);
    world.pasteboard.setString(u"word"_s);
    world.clock.advance(1s);
    QCOMPARE(world.answer, u"word"_s);
    QCOMPARE(world.pasteboard.items(), world.users);
}

void TestSyntheticCopy::copyDuringTheWaitForTheKeysIsTheUsers()
{
    World world;
    world.poster.setDelay(world.clock, 600ms);
    world.ask();
    world.clock.advance(300ms);
    const QList<PasteboardItem> copied = world.copy(u"the user's"_s);
    world.clock.advance(5s);
    QVERIFY(world.isAnswered);
    QVERIFY(!world.answer);
    QVERIFY(world.poster.posted().isEmpty());
    QCOMPARE(world.pasteboard.items(), copied);
}

void TestSyntheticCopy::copyFromElsewhereIsNotTheAnswer()
{
    World world;
    world.ask();
    world.pasteboard.setOrigin(by(1));
    const QList<PasteboardItem> copied = world.copy(u"the user's"_s);
    world.clock.advance(100ms);
    QVERIFY(!world.isAnswered);
    world.pasteboard.setOrigin(by(4711));
    world.pasteboard.setString(u"word"_s);
    world.clock.advance(1s);
    QCOMPARE(world.answer, u"word"_s);
    QCOMPARE(world.pasteboard.items(), copied);
}

/// The application hung for long, and the user has gone on in others.
void TestSyntheticCopy::lateCopyBringsBackTheNewest()
{
    World world;
    world.ask();
    world.clock.advance(1s);
    world.bringForward(1);
    world.tap.press();
    world.pasteboard.setOrigin(by(1, 0ms));
    const QList<PasteboardItem> copied = world.copy(u"the user's"_s);
    world.clock.advance(2min);
    world.pasteboard.setOrigin(by(4711, 121s));
    world.pasteboard.setString(u"late"_s);
    world.clock.advance(1s);
    QCOMPARE(world.pasteboard.items(), copied);

    world.pasteboard.setString(u"once more"_s);
    world.clock.advance(1s);
    QVERIFY(world.pasteboard.items() != copied);
}

void TestSyntheticCopy::secondQuestionMeanwhileIsRefused()
{
    World world;
    world.ask();
    world.clock.advance(100ms);
    world.ask();
    QVERIFY(world.isAnswered);
    QVERIFY(!world.answer);
    world.pasteboard.setString(u"word"_s);
    world.clock.advance(50ms);
    QCOMPARE(world.answer, u"word"_s);
    QCOMPARE(world.pasteboard.items(), world.users);
    QCOMPARE(world.poster.posted().size(), 1);
}

void TestSyntheticCopy::lateCopy_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<bool>("isUndone");
    QTest::newRow("application was hung") << Event([](World &) {}) << true;
    QTest::newRow("Vesk came forward")
        << Event([](World &world) { world.bringForward(QCoreApplication::applicationPid()); }) << true;
    QTest::newRow("user typed a key") << Event([](World &world) { world.tap.press(); }) << false;
    QTest::newRow("user went elsewhere") << Event([](World &world) { world.bringForward(1); }) << false;
    QTest::newRow("user copies there by a key") << Event([](World &world) {
        world.tap.press();
        world.pasteboard.setOrigin(by(4711, 0ms));
    }) << false;
    QTest::newRow("it says that it was told long ago") << Event([](World &world) {
        world.tap.press();
        world.pasteboard.setOrigin(by(4711, 1s));
    }) << true;
    QTest::newRow("after 10 seconds") << Event([](World &world) { world.clock.advance(10s); }) << false;
    QTest::newRow("after an earlier one") << Event([](World &world) {
        world.pasteboard.setString(u"late"_s);
        world.clock.advance(1s);
    }) << false;
}

void TestSyntheticCopy::lateCopy()
{
    QFETCH(const Event, event);
    QFETCH(const bool, isUndone);
    World world;
    world.ask();
    world.clock.advance(1s);
    event(world);
    const QList<PasteboardItem> copied = world.copy(u"word"_s);
    world.clock.advance(1s);
    QCOMPARE(world.pasteboard.items(), isUndone ? world.users : copied);
}

void TestSyntheticCopy::vesksOwnWritingIsNotUndone()
{
    World world;
    world.ask();
    world.clock.advance(1s);
    world.pasteboard.setString(u"to be pasted"_s);
    world.watcher.markOwn();
    const QList<PasteboardItem> written = world.pasteboard.items();
    world.clock.advance(1s);
    QCOMPARE(world.pasteboard.items(), written);
}

void TestSyntheticCopy::deafPlatformUndoesNothing()
{
    World world;
    world.tap.setAllowed(false);
    world.ask();
    world.clock.advance(1s);
    world.pasteboard.setString(u"perhaps the user's"_s);
    world.clock.advance(1s);
    QVERIFY(world.pasteboard.items() != world.users);
}

void TestSyntheticCopy::lateCopyAnswersTheNextQuestion()
{
    World world;
    world.ask();
    world.clock.advance(3s);
    world.ask();
    world.pasteboard.setString(u"word"_s);
    world.clock.advance(1s);
    QCOMPARE(world.answer, u"word"_s);
    QCOMPARE(world.pasteboard.items(), world.users);
}

void TestSyntheticCopy::endOfTheProgramWhileWaiting()
{
    World world;
    world.ask();
    world.clock.advance(1s);
    world.pasteboard.setString(u"late"_s);
    world.ask();
    world.synthetic.reset();
    world.clock.advance(1min);
    QCOMPARE(world.clock.sleeperCount(), 0);
}

QTEST_GUILESS_MAIN(TestSyntheticCopy)

#include "tst_syntheticcopy.moc"
