// SPDX-License-Identifier: MIT
#include "capturedesktop.h"

#include <QCoroTask>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

/// Reads the selection and keeps the answer.
struct World : CaptureDesktop
{
    World() { watcher.start(); }

    void ask()
    {
        reader.readSelection().then([this](const SelectionReader::Reading &reading) {
            isAnswered = true;
            answer = reading.text;
            lack = reading.lack;
        });
    }

    SelectionReader reader{readersNeeds()};
    bool isAnswered = false;
    std::optional<QString> answer;
    SelectionReader::Reading::Lack lack{};
};

} // namespace

Q_DECLARE_METATYPE(SelectedText)
Q_DECLARE_METATYPE(SelectionReader::Reading::Lack)

/// What counts as selected, and what is recorded about its source.
class TestSelectionReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selection_data();
    void selection();
    void selectionThatComesLate();
    void readableSelectionLeavesThePasteboardAlone();
    void unreadableSelectionIsCopied();
    void recentCopyIsTheLastResort_data();
    void recentCopyIsTheLastResort();
    void caretsLineIsNotASelection_data();
    void caretsLineIsNotASelection();
    void missingTextHasAReason_data();
    void missingTextHasAReason();
    void addressBarGivesTheWholeAddress();
    void withoutTrustNothingIsCopied();
    void source_data();
    void source();
    void sourceOfNobody();
};

void TestSelectionReader::selection_data()
{
    QTest::addColumn<std::optional<QString>>("selected");
    QTest::addColumn<std::optional<QString>>("expected");
    QTest::newRow("white space at the ends") << std::optional(u"  hello\n"_s) << std::optional(u"hello"_s);
    QTest::newRow("white space inside stays")
        << std::optional(u"a \u2028 b\r\nc"_s) << std::optional(u"a \u2028 b\r\nc"_s);
    QTest::newRow("only white space") << std::optional(u" \t\n\u2029\u00a0"_s) << std::optional<QString>();
    QTest::newRow("nothing") << std::optional<QString>() << std::optional<QString>();
}

void TestSelectionReader::selection()
{
    QFETCH(const std::optional<QString>, selected);
    QFETCH(const std::optional<QString>, expected);
    World world;
    world.poster.setAllowed(false);
    world.select(selected);
    world.ask();
    QVERIFY(world.isAnswered);
    QCOMPARE(world.answer, expected);
}

void TestSelectionReader::selectionThatComesLate()
{
    World world;
    world.select(u"late"_s);
    world.accessibility.setDelay(80ms);
    world.ask();
    world.clock.advance(70ms);
    QVERIFY(!world.answer);
    world.clock.advance(10ms);
    QCOMPARE(world.answer, u"late"_s);
}

void TestSelectionReader::readableSelectionLeavesThePasteboardAlone()
{
    World world;
    world.select(u"selected"_s);
    world.pasteboard.setString(u"copied"_s);
    const qint64 before = world.pasteboard.changeCount();
    world.ask();
    QCOMPARE(world.answer, u"selected"_s);
    QVERIFY(world.poster.posted().isEmpty());
    QCOMPARE(world.pasteboard.changeCount(), before);
}

void TestSelectionReader::unreadableSelectionIsCopied()
{
    World world;
    world.select(u" \n"_s);
    world.pasteboard.setString(u"copied before"_s);
    world.poster.setResponse([&world](EventPoster::Command) { world.pasteboard.setString(u"selected"_s); });
    world.ask();
    world.clock.advance(1s);
    QCOMPARE(world.answer, u"selected"_s);
    QCOMPARE(QCoro::waitFor(world.pasteboard.string()), u"copied before"_s);
}

void TestSelectionReader::recentCopyIsTheLastResort_data()
{
    QTest::addColumn<bool>("copiesPicture");
    QTest::addColumn<int>("age");
    QTest::addColumn<std::optional<QString>>("expected");
    QTest::newRow("5 seconds ago") << false << 5 << std::optional(u"copied"_s);
    QTest::newRow("9 seconds ago") << false << 9 << std::optional<QString>();
    QTest::newRow("5 seconds ago, a picture is selected") << true << 5 << std::optional(u"copied"_s);
    // Restoring the text does not make it recent.
    QTest::newRow("9 seconds ago, a picture is selected") << true << 9 << std::optional<QString>();
}

void TestSelectionReader::recentCopyIsTheLastResort()
{
    QFETCH(const bool, copiesPicture);
    QFETCH(const int, age);
    QFETCH(const std::optional<QString>, expected);
    World world;
    world.pasteboard.setString(u"copied"_s);
    world.clock.advance(std::chrono::seconds{age});
    if (copiesPicture) {
        world.poster.setResponse([&world](EventPoster::Command) { world.writePicture(); });
    }
    world.ask();
    world.clock.advance(500ms);
    QVERIFY(world.isAnswered);
    QCOMPARE(world.answer, expected);
}

void TestSelectionReader::caretsLineIsNotASelection_data()
{
    QTest::addColumn<QString>("copied");
    QTest::addColumn<bool>("isClaimed");
    QTest::addColumn<std::optional<QString>>("expected");
    const auto kept = [](const QString &text) { return std::optional(text); };
    const std::optional<QString> none;
    QTest::newRow("line with its break") << u"one two\n"_s << false << none;
    QTest::newRow("line with its break, of Windows") << u"one two\r\n"_s << false << none;
    QTest::newRow("line that is said to be selected") << u"one two\n"_s << true << kept(u"one two"_s);
    QTest::newRow("part of a line") << u"one two"_s << false << kept(u"one two"_s);
    QTest::newRow("two lines") << u"one\ntwo\n"_s << false << kept(u"one\ntwo"_s);
}

void TestSelectionReader::caretsLineIsNotASelection()
{
    QFETCH(const QString, copied);
    QFETCH(const bool, isClaimed);
    World world;
    world.accessibility.setSelectedText({.isClaimed = isClaimed});
    world.poster.setResponse([&](EventPoster::Command) { world.pasteboard.setString(copied); });
    world.ask();
    world.clock.advance(1s);
    QTEST(world.answer, "expected");
}

void TestSelectionReader::missingTextHasAReason_data()
{
    using Lack = SelectionReader::Reading::Lack;
    QTest::addColumn<SelectedText>("selected");
    QTest::addColumn<Lack>("lack");
    QTest::newRow("nothing selected")
        << SelectedText{.finding = SelectedText::Finding::Nothing} << Lack::None;
    QTest::newRow("cannot be told") << SelectedText() << Lack::None;
    QTest::newRow("claimed") << SelectedText{.isClaimed = true} << Lack::NotGiven;
    QTest::newRow("busy") << SelectedText{.isClaimed = true, .isSilent = true} << Lack::NoAnswer;
}

void TestSelectionReader::missingTextHasAReason()
{
    QFETCH(const SelectedText, selected);
    World world;
    world.accessibility.setSelectedText(selected);
    world.ask();
    world.clock.advance(1s);
    QVERIFY(world.isAnswered);
    QVERIFY(!world.answer);
    QTEST(world.lack, "lack");
    // If there is a text, nothing needs explaining.
    world.poster.setResponse([&world](EventPoster::Command) { world.pasteboard.setString(u"text"_s); });
    world.ask();
    world.clock.advance(1s);
    QCOMPARE(world.lack, SelectionReader::Reading::Lack::None);
}

void TestSelectionReader::addressBarGivesTheWholeAddress()
{
    World world;
    const AccessibleElement page{.processIdentifier = World::kPid, .address = u"page"_s};
    world.accessibility.setElement(
        page,
        {.role = Accessibility::kWebAreaRole, .url = u"https://www.example.org/a"_s, .parent = std::nullopt});
    world.accessibility.setShownPage(page);
    world.select(u"example.org/a"_s);
    world.ask();
    QCOMPARE(world.answer, u"https://www.example.org/a"_s);
    world.select(u"example.org"_s);
    world.ask();
    QCOMPARE(world.answer, u"example.org"_s);
    // On the page itself, its words take precedence.
    world.accessibility.setFocusedElement(page);
    world.select(u"example.org/a"_s);
    world.ask();
    QCOMPARE(world.answer, u"example.org/a"_s);
}

void TestSelectionReader::withoutTrustNothingIsCopied()
{
    World world;
    world.pasteboard.setString(u"private"_s);
    world.accessibility.setTrusted(false);
    world.ask();
    QVERIFY(world.isAnswered);
    QVERIFY(!world.answer);
    QVERIFY(world.poster.posted().isEmpty());
}

void TestSelectionReader::source_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("isTrusted");
    QTest::addColumn<std::optional<QString>>("expected");
    QTest::newRow("title") << u" letter.txt "_s << true << std::optional(u"letter.txt"_s);
    QTest::newRow("title that only names the application") << u"Editor"_s << true << std::optional<QString>();
    QTest::newRow("blank title") << u"  "_s << true << std::optional<QString>();
    QTest::newRow("no trust") << u"letter.txt"_s << false << std::optional<QString>();
}

void TestSelectionReader::source()
{
    QFETCH(const QString, title);
    QFETCH(const bool, isTrusted);
    QFETCH(const std::optional<QString>, expected);
    World world;
    world.accessibility.setFocusedWindowTitle(World::kPid, title);
    world.accessibility.setTrusted(isTrusted);
    const std::optional<SelectionReader::SourceAtPress> press = world.reader.readSource();
    QVERIFY(press);
    const CaptureSource source{
        .app = u"Editor"_s, .bundleID = u"org.example.Editor"_s, .title = expected, .url = {}};
    QCOMPARE(press->source, source);
    QCOMPARE(press->processIdentifier, World::kPid);
}

void TestSelectionReader::sourceOfNobody()
{
    World world;
    world.workspace.setFrontmostApplication(std::nullopt);
    QVERIFY(!world.reader.readSource());
    world.bringForward(QCoreApplication::applicationPid(), u"Vesk"_s);
    QVERIFY(!world.reader.readSource());
    world.bringForward(World::kPid);
    QVERIFY(!world.reader.readSource());
}

QTEST_GUILESS_MAIN(TestSelectionReader)

#include "tst_selectionreader.moc"
