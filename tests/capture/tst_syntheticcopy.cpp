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

/// An application that is told to copy, and a user who has something on the pasteboard.
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
    /// What the user must find on the pasteboard at the end.
    QList<PasteboardItem> expected = users;
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
        synthetic->copySelection(poster.target()).then([this](std::optional<QString> text) {
            isAnswered = true;
            answer = text;
        });
    }

    /// Makes the application copy when told to.
    void copyWhenTold()
    {
        poster.setResponse([this](Command) { pasteboard.setString(u"word"_s); });
    }

    /// The user's pasteboard after such a copy.
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

using Event = std::function<void(World &)>;

} // namespace

Q_DECLARE_METATYPE(Event)

/// What is read by making the application copy, and what the user finds on the pasteboard afterwards.
class TestSyntheticCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copies_data();
    void copies();
    void pastedTextStaysVesksOwn();
    void restoresTheUsersClipboard_data();
    void restoresTheUsersClipboard();
    void ignoredKeysLeaveThePasteboardAlone();
    void lateCopyBringsBackTheNewest();
    void lateCopy_data();
    void lateCopy();
    void programMayEndWhileWaiting();
};

void TestSyntheticCopy::copies_data()
{
    QTest::addColumn<int>("after");
    QTest::addColumn<QString>("copied");
    QTest::addColumn<QString>("expected");
    QTest::newRow("at once, untrimmed") << 0 << u" word\n"_s << u" word\n"_s;
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

void TestSyntheticCopy::restoresTheUsersClipboard_data()
{
    QTest::addColumn<int>("posted");
    QTest::addColumn<QString>("answer");
    QTest::addColumn<Event>("event");
    const auto row = [](const char *name, int posted, const QString &answer, const Event &event) {
        QTest::newRow(name) << posted << answer << event;
    };
    row("an empty pasteboard is empty again", 1, u"word"_s, [](World &world) {
        world.pasteboard.clearContents();
        world.expected.clear();
        world.copyWhenTold();
        world.ask();
    });
    row("what cannot be saved is not replaced", 0, u"-"_s, [](World &world) {
        world.pasteboard.setSecret(true);
        world.copyWhenTold();
        world.ask();
    });
    row("keys that are refused are not waited for", 0, u"-"_s, [](World &world) {
        world.poster.setAllowed(false);
        world.ask();
        QVERIFY(world.isAnswered);
        // No copy was requested, so this one is the user's.
        world.expected = world.copy(u"the user's"_s);
    });
    row("user copies before the restore", 1, u"word"_s, [](World &world) {
        world.copyWhenTold();
        world.pasteboard.setDelay(world.clock, 40ms);
        world.ask();
        // Saving takes 40 ms, then the application copies; reading begins 25 ms later.
        world.clock.advance(80ms);
        world.expected = world.copy(u"the user's"_s);
    });
    row("copy that is announced twice", 1, u"word"_s, [](World &world) {
        world.copyWhenTold();
        world.ask();
        world.clock.advance(10ms);
        world.pasteboard.setString(u"word"_s);
    });
    row("copy during the wait for the keys is the user's", 0, u"-"_s, [](World &world) {
        world.poster.setDelay(world.clock, 600ms);
        world.ask();
        world.clock.advance(300ms);
        world.expected = world.copy(u"the user's"_s);
    });
    row("copy from elsewhere is not the answer", 1, u"word"_s, [](World &world) {
        world.ask();
        world.pasteboard.setOrigin(by(1));
        world.expected = world.copy(u"the user's"_s);
        world.clock.advance(100ms);
        QVERIFY(!world.isAnswered);
        world.pasteboard.setOrigin(by(4711));
        world.pasteboard.setString(u"word"_s);
    });
    row("second question meanwhile is refused", 1, u"word"_s, [](World &world) {
        world.ask();
        world.clock.advance(100ms);
        world.ask();
        QVERIFY(world.isAnswered && !world.answer);
        world.pasteboard.setString(u"word"_s);
    });
    row("late copy answers the next question", 2, u"word"_s, [](World &world) {
        world.ask();
        world.clock.advance(3s);
        world.ask();
        world.pasteboard.setString(u"word"_s);
    });
    row("what Vesk writes is not undone", 1, u"-"_s, [](World &world) {
        world.ask();
        world.clock.advance(1s);
        world.expected = world.copy(u"to be pasted"_s);
        world.watcher.markOwn();
    });
    row("nothing is undone where no keys are heard", 1, u"-"_s, [](World &world) {
        world.tap.setAllowed(false);
        world.ask();
        world.clock.advance(1s);
        world.expected = world.copy(u"perhaps the user's"_s);
    });
}

void TestSyntheticCopy::restoresTheUsersClipboard()
{
    QFETCH(const int, posted);
    QFETCH(const QString, answer);
    QFETCH(const Event, event);
    World world;
    event(world);
    world.clock.advance(5s);
    QVERIFY(world.isAnswered);
    QCOMPARE(world.answer.value_or(u"-"_s), answer);
    QCOMPARE(world.pasteboard.items(), world.expected);
    QCOMPARE(world.poster.posted().size(), posted);
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

/// The application hung for a long time, and the user has moved on to others.
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

void TestSyntheticCopy::programMayEndWhileWaiting()
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
