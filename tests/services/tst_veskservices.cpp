// SPDX-License-Identifier: MIT
#include "servicesworld.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

Q_DECLARE_METATYPE(Command)

/// The effects of the global keys.
class TestVeskServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selectionGoesWhereTheKeySays_data();
    void selectionGoesWhereTheKeySays();
    void repeatedCommandsAreIgnored_data();
    void repeatedCommandsAreIgnored();
    void sourceIsOfTheKeyPress();
    void tooLongTextIsRefused_data() { commands(); }
    void tooLongTextIsRefused();
    void failedSaveIsNotConfirmed_data() { commands(); }
    void failedSaveIsNotConfirmed();
    void nothingSelected_data();
    void nothingSelected();
    void missingTextIsExplained();
    void sameKeyClosesTheBox();
    void trustWithdrawnWhileReading();
    void panelKeysWaitForAReadingNoLongerThanASecond();
    void unrestorableClipboardIsReported_data() { commands(); }
    void unrestorableClipboardIsReported();
    void doubleShiftIsHeardOnlyWithTrust();
    void keysAreLeftToTheApplicationsThatTheUserNames();

private:
    static void commands();
};

void TestVeskServices::commands()
{
    QTest::addColumn<Command>("command");
    QTest::newRow("note") << Command::Capture;
    QTest::newRow("append") << Command::CaptureToLastNote;
    QTest::newRow("checklist") << Command::CaptureChecklist;
    QTest::newRow("add to checklist") << Command::AddToChecklist;
    QTest::newRow("prompt") << Command::SavePrompt;
}

void TestVeskServices::selectionGoesWhereTheKeySays_data()
{
    QTest::addColumn<QStringList>("before"); // Oldest first.
    QTest::addColumn<Command>("command");
    QTest::addColumn<QString>("selection");
    QTest::addColumn<QStringList>("after"); // Newest first.
    QTest::addColumn<QString>("notice");
    const QString saved = u"Saved to Vesk"_s;
    const QString already = u"Already in Vesk"_s;
    const QString lines = u"milk\n\n bread"_s;
    const QString boxes = u"☐ milk\n☐ bread"_s;
    const auto row = [](const char *name, const QStringList &before, Command command,
                        const QString &selection, const QStringList &after, const QString &notice) {
        QTest::newRow(name) << before << command << selection << after << notice;
    };
    row("same as the newest", {u"b"_s, u"a"_s}, Command::Capture, u"a"_s, {u"a"_s, u"b"_s}, already);
    row("same as an older one", {u"a"_s, u"b"_s}, Command::Capture, u"a"_s, {u"a"_s, u"b"_s, u"a"_s}, saved);
    row("half a surrogate, again", {u"a\uFFFD"_s}, Command::Capture, u"a"_s + QChar(0xd800), {u"a\uFFFD"_s},
        already);
    row("append to nothing", {}, Command::CaptureToLastNote, u"a"_s, {u"a"_s}, saved);
    row("append", {u"old"_s, u"# List\nmore"_s}, Command::CaptureToLastNote, u"a"_s,
        {u"# List\nmore\n\na"_s, u"old"_s}, u"Added to “List”"_s);
    row("append what is there", {u"a"_s}, Command::CaptureToLastNote, u"a"_s, {u"a\n\na"_s},
        u"Added to “a”"_s);
    row("append to no title", {u""_s}, Command::CaptureToLastNote, u"a"_s, {u"\n\na"_s},
        u"Added to “New Note”"_s);
    row("checklist", {u"a"_s}, Command::CaptureChecklist, lines, {boxes, u"a"_s}, saved);
    row("same checklist", {boxes}, Command::CaptureChecklist, lines, {boxes}, already);
    row("add, newest has boxes", {u"☐ x"_s, u"Shop\n☑ y"_s}, Command::AddToChecklist, lines,
        {u"Shop\n☑ y\n☐ milk\n☐ bread"_s, u"☐ x"_s}, u"Added to “Shop”"_s);
    row("add, an older one has boxes", {u"☐ x"_s, u"☐ y"_s, u"plain"_s}, Command::AddToChecklist, u"z"_s,
        {u"☐ y\n☐ z"_s, u"plain"_s, u"☐ x"_s}, u"Added to “y”"_s);
    row("add, no note has checkboxes", {u"plain"_s}, Command::AddToChecklist, lines, {boxes, u"plain"_s},
        saved);
    row("add what is there", {boxes}, Command::AddToChecklist, u"milk"_s, {boxes + u"\n☐ milk"_s},
        u"Added to “milk”"_s);
}

void TestVeskServices::selectionGoesWhereTheKeySays()
{
    QFETCH(const QStringList, before);
    QFETCH(const Command, command);
    QFETCH(const QString, selection);
    QFETCH(const QStringList, after);
    QFETCH(const QString, notice);
    ServicesWorld world;
    for (const QString &text : before) {
        world.store.insert(std::make_unique<Note>(world.clock, text));
        world.clock.advance(1s);
    }
    world.select(selection);
    world.press(command);
    QCOMPARE(world.texts(), after);
    QCOMPARE(ServicesWorld::notice(), notice);
    QVERIFY(!world.store.hasPendingChanges());
    QCOMPARE(world.sounds.played(), QList{Sounds::Sound::Tink});
    QVERIFY2(!world.box.isExpected(), "What is typed is kept from the application.");
}

void TestVeskServices::repeatedCommandsAreIgnored_data()
{
    QTest::addColumn<Command>("first");
    QTest::addColumn<Command>("second");
    QTest::addColumn<std::chrono::milliseconds>("distance");
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("note, note, too soon") << Command::Capture << Command::Capture << 1999ms << false;
    QTest::newRow("note, note") << Command::Capture << Command::Capture << 2000ms << true;
    QTest::newRow("note, append, too soon")
        << Command::Capture << Command::CaptureToLastNote << 1999ms << false;
    QTest::newRow("checklist, add, too soon")
        << Command::CaptureChecklist << Command::AddToChecklist << 1999ms << false;
    QTest::newRow("add, note, too soon") << Command::AddToChecklist << Command::Capture << 1999ms << false;
    QTest::newRow("add, add") << Command::AddToChecklist << Command::AddToChecklist << 2000ms << true;
    QTest::newRow("note, prompt at once") << Command::Capture << Command::SavePrompt << 0ms << true;
    QTest::newRow("prompt, note at once") << Command::SavePrompt << Command::Capture << 0ms << true;
    QTest::newRow("prompt, prompt, too soon")
        << Command::SavePrompt << Command::SavePrompt << 1999ms << false;
    QTest::newRow("prompt, prompt") << Command::SavePrompt << Command::SavePrompt << 2000ms << true;
}

void TestVeskServices::repeatedCommandsAreIgnored()
{
    QFETCH(const Command, first);
    QFETCH(const Command, second);
    QFETCH(const std::chrono::milliseconds, distance);
    QFETCH(const bool, isAccepted);
    ServicesWorld world;
    world.select(u"one"_s);
    world.press(first);
    // The wall clock does not matter to the keys.
    world.clock.setNow(world.clock.now() - 3h);
    world.clock.advance(distance / 2);
    world.press(first);
    world.clock.advance(distance - distance / 2);
    world.select(u"two"_s);
    world.press(second);
    const QString all = (world.texts() + world.prompts()).join(u'\n');
    QVERIFY(all.contains(u"one"_s));
    QCOMPARE(all.contains(u"two"_s), isAccepted);
}

void TestVeskServices::sourceIsOfTheKeyPress()
{
    for (const Command key : {Command::Capture, Command::AddToChecklist}) {
        ServicesWorld world;
        world.select(u"text"_s);
        world.accessibility.setFocusedWindowTitle(4711, u"garden.txt"_s);
        world.accessibility.setDelay(50ms);
        world.press(key);
        world.bringForward(1, u"Other"_s);
        QVERIFY(world.texts().isEmpty());
        world.clock.advance(200ms);
        QCOMPARE(world.texts().size(), 1);
        QCOMPARE(world.store.notes().first()->sourceApp(), u"Editor"_s);
        QCOMPARE(world.store.notes().first()->sourceBundleID(), u"org.example.Editor"_s);
        QCOMPARE(world.store.notes().first()->sourceTitle(), u"garden.txt"_s);
    }
}

void TestVeskServices::tooLongTextIsRefused()
{
    QFETCH(const Command, command);
    ServicesWorld world;
    // Two bytes each: the text is over the limit in bytes, not in characters.
    world.select(QString(noterules::kMaximumBytes / 2 + 1, u'ä'));
    world.press(command);
    QCOMPARE(ServicesWorld::notice(), u"The selection is too long to keep"_s);
    world.clock.advance(3s);
    world.select(QString(noterules::kMaximumBytes / 2, u'ä'));
    world.press(command);
    QCOMPARE(world.texts().size() + world.prompts().size(), 1);
    QVERIFY(ServicesWorld::notice().startsWith(u"Saved to "_s));
}

void TestVeskServices::failedSaveIsNotConfirmed()
{
    QFETCH(const Command, command);
    ServicesWorld world;
    world.select(u"kept in memory"_s);
    {
        // Like another program's transaction.
        SQLite::Database other(world.folder.filePath(u"Notes.store"_s).toStdString(), SQLite::OPEN_READWRITE);
        other.exec("BEGIN IMMEDIATE");
        world.press(command);
        QCOMPARE(ServicesWorld::notice(), u"Not saved yet, Vesk keeps trying"_s);
        QVERIFY(world.sounds.played().isEmpty());
        QVERIFY(world.store.hasPendingChanges());
    }
    world.clock.advance(1min);
    QVERIFY(!world.store.hasPendingChanges());
    QCOMPARE(world.texts().size() + world.prompts().size(), 1);
}

void TestVeskServices::nothingSelected_data()
{
    using Mode = std::optional<QuickNoteBox::Mode>;
    QTest::addColumn<Command>("command");
    QTest::addColumn<bool>("isTrusted");
    QTest::addColumn<Mode>("mode");
    QTest::addColumn<QString>("notice");
    const QString hint = u"Select text to add to your checklist"_s;
    const QString refusal = u"Vesk needs Accessibility access"_s;
    const Mode note = QuickNoteBox::Mode::Note;
    const Mode list = QuickNoteBox::Mode::Checklist;
    QTest::newRow("note") << Command::Capture << true << note << QString();
    QTest::newRow("append") << Command::CaptureToLastNote << true << note << QString();
    QTest::newRow("checklist") << Command::CaptureChecklist << true << list << QString();
    QTest::newRow("add") << Command::AddToChecklist << true << Mode() << hint;
    QTest::newRow("prompt") << Command::SavePrompt << true << Mode() << QString();
    QTest::newRow("note, no trust") << Command::Capture << false << note << QString();
    QTest::newRow("append, no trust") << Command::CaptureToLastNote << false << note << QString();
    QTest::newRow("checklist, no trust") << Command::CaptureChecklist << false << list << QString();
    QTest::newRow("add, no trust") << Command::AddToChecklist << false << Mode() << refusal;
    QTest::newRow("prompt, no trust") << Command::SavePrompt << false << Mode() << QString();
}

/// Without the user's permission there is no selection, whatever is selected.
void TestVeskServices::nothingSelected()
{
    QFETCH(const Command, command);
    QFETCH(const bool, isTrusted);
    QFETCH(const std::optional<QuickNoteBox::Mode>, mode);
    QFETCH(const QString, notice);
    ServicesWorld world;
    world.accessibility.setTrusted(isTrusted);
    world.select(isTrusted ? QString() : u"private"_s);
    for (int press = 0; press < 2; ++press) {
        world.press(command);
        QCOMPARE(world.box.mode(), mode);
        QCOMPARE(ServicesWorld::notice(), notice);
        world.box.close();
        world.clock.advance(3s);
    }
    // The key asks once per run; Shift does not.
    const bool isAskedFor = !isTrusted && command != Command::SavePrompt;
    QCOMPARE(world.accessibility.askCount(), isAskedFor ? 1 : 0);
    QVERIFY(world.texts().isEmpty() && world.prompts().isEmpty());
    QVERIFY(world.sounds.played().isEmpty());
    QVERIFY(world.poster.posted().isEmpty());
}

/// A busy application provides no text although something is highlighted in it.
void TestVeskServices::missingTextIsExplained()
{
    const QString reason = u"Editor did not answer, so Vesk could not read what is selected there."_s;
    ServicesWorld world;
    world.accessibility.setSelectedText({.isClaimed = true, .isSilent = true});
    world.press(Command::Capture);
    world.clock.advance(1s);
    QCOMPARE(world.box.mode(), QuickNoteBox::Mode::Note);
    QCOMPARE(world.box.remark(), reason);
    world.box.close();
    world.clock.advance(3s);
    world.press(Command::AddToChecklist);
    world.clock.advance(1s);
    QCOMPARE(ServicesWorld::notice(), reason);
    // The next time, nothing is selected.
    world.clock.advance(9s);
    world.select(QString());
    world.press(Command::Capture);
    QCOMPARE(world.box.remark(), QString());
}

void TestVeskServices::sameKeyClosesTheBox()
{
    ServicesWorld world;
    world.select(QString());
    world.press(Command::Capture);
    QVERIFY(world.box.isShowing());
    world.select(u"not to be read"_s);
    world.clock.advance(1s);
    world.press(Command::CaptureChecklist);
    QVERIFY(!world.box.isShowing());
    // Closing counts as a command, so another press right after it is ignored.
    world.clock.advance(1999ms);
    world.press(Command::Capture);
    QVERIFY(world.texts().isEmpty() && !world.box.isShowing());
    // The box ignores this press.
    world.box.show(QuickNoteBox::Mode::Note);
    world.press(Command::AddToChecklist);
    QVERIFY(world.texts().isEmpty() && world.box.isShowing());
}

void TestVeskServices::trustWithdrawnWhileReading()
{
    ServicesWorld world;
    world.select(u"private"_s);
    world.accessibility.setDelay(50ms);
    world.press(Command::Capture);
    world.accessibility.setTrusted(false);
    world.clock.advance(1s);
    QVERIFY(world.texts().isEmpty());
    QVERIFY(world.box.isShowing());
    QCOMPARE(world.accessibility.askCount(), 1);
}

void TestVeskServices::unrestorableClipboardIsReported()
{
    QFETCH(const Command, command);
    const QString reason =
        u"Vesk could not read what is selected in Editor without losing what is on the clipboard."_s;
    ServicesWorld world;
    world.select(std::nullopt);
    world.pasteboard.setString(u"password"_s);
    world.pasteboard.setSecret(true);
    world.press(command);
    world.clock.advance(1s);
    QVERIFY(world.poster.posted().isEmpty());
    QCOMPARE(world.box.isShowing() ? world.box.remark() : world.notice(), reason);
    // The next time, nothing is in the way.
    world.pasteboard.setSecret(false);
    world.box.close();
    world.clock.advance(20s);
    QTRY_COMPARE(world.notice(), QString());
    world.press(command);
    world.clock.advance(2s);
    QVERIFY(world.notice() != reason && world.box.remark() != reason);
}

/// The panel would take the focus from the application that is being read, but the user does not wait
/// forever.
void TestVeskServices::panelKeysWaitForAReadingNoLongerThanASecond()
{
    ServicesWorld world;
    world.select(std::nullopt);
    world.poster.setDelay(world.clock, 10s);
    world.press(Command::Capture);
    // A second press meanwhile does not close what the first has not opened yet. Menus, other programs and a
    // second start wait as the keys do.
    world.press(Command::Toggle);
    world.press(Command::Toggle);
    world.services.perform(Command::Show);
    world.services.perform(Command::QuickNote);
    world.clock.advance(999ms);
    QVERIFY(!world.panelWindow.isShown() && !world.box.isShowing());
    world.clock.advance(1ms);
    QVERIFY(world.panelWindow.isShown());
    // A later reading has its own second.
    world.application.hide();
    world.clock.advance(20s);
    world.box.close();
    world.press(Command::Capture);
    world.clock.advance(500ms);
    world.press(Command::Write);
    world.clock.advance(999ms);
    QVERIFY(!world.panelWindow.isShown());
    world.clock.advance(1ms);
    QVERIFY(world.panelWindow.isShown());
    // The poster is still waiting, and must end before the clock does.
    world.clock.advance(20s);
}

void TestVeskServices::doubleShiftIsHeardOnlyWithTrust()
{
    ServicesWorld world;
    for (const auto &[text, isTrusted, notice] :
         {std::tuple(u"one"_s, true, u"Saved to Prompts"_s),
          std::tuple(u"one"_s, true, u"Already in Prompts"_s), std::tuple(u"two"_s, false, QString()),
          std::tuple(u"two"_s, true, u"Saved to Prompts"_s),
          std::tuple(u"one"_s, true, u"Saved to Prompts"_s)}) {
        world.clock.advance(5s);
        world.accessibility.setTrusted(isTrusted);
        world.select(text);
        world.tapShiftTwice();
        // The previous notice may still be fading.
        if (!notice.isEmpty())
            QCOMPARE(ServicesWorld::notice(), notice);
    }
    QCOMPARE(world.prompts(), (QStringList{u"one"_s, u"two"_s, u"one"_s}));
    QVERIFY(world.store.prompts().first()->isCaptured());
    QCOMPARE(world.sounds.played().size(), 3);
    QVERIFY(world.texts().isEmpty());

    // A tap from before the permission was withdrawn does not count as half of a later double tap.
    world.clock.advance(5s);
    world.tap.setFlags({.held = Qt::ShiftModifier, .isCapsLocked = false, .time = {}});
    world.tap.setFlags({});
    world.accessibility.setTrusted(false);
    world.accessibility.setTrusted(true);
    world.select(u"three"_s);
    world.tap.setFlags({.held = Qt::ShiftModifier, .isCapsLocked = false, .time = {}});
    world.tap.setFlags({});
    QCOMPARE(world.prompts().size(), 3);
}

void TestVeskServices::keysAreLeftToTheApplicationsThatTheUserNames()
{
    ServicesWorld world("capture --checklist = Super+Alt+C, not in org.example.Files.desktop other\n"
                        "save-prompt = Shift Shift, not in org.example.Files\n");
    const KeyCombination key = combinationOf(Command::CaptureChecklist);
    world.select(u"text"_s);
    world.bringForward(1, u"App"_s, u"org.example.Files"_s);
    QVERIFY(!world.hotKeys.press(key));
    QVERIFY(world.hotKeys.press(combinationOf(Command::AddToChecklist)));
    world.tapShiftTwice();
    QVERIFY(world.prompts().isEmpty());
    world.bringForward(2, u"App"_s);
    QVERIFY(world.hotKeys.press(key));
    world.tapShiftTwice();
    QCOMPARE(world.prompts().size(), 1);
    world.bringForward(3, u"App"_s, u"org.example.Files"_s);
    world.bringForward(4, u"App"_s, u"org.example.files"_s);
    world.bringForward(5, u"App"_s, u"org.example.Editor"_s);
    QVERIFY(world.hotKeys.press(key));
    QCOMPARE(world.hotKeys.registrationCount(), 6);
}

QTEST_MAIN(TestVeskServices)

#include "tst_veskservices.moc"
