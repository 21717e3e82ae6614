// SPDX-License-Identifier: MIT
#include "capture/selectionreader.h"
#include "platform/memory/memoryaccessibility.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memoryworkspace.h"

#include <QCoroTask>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// What counts as selected, and what is said of where it was.
class TestSelectionReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void selection_data();
    void selection();
    void selectionThatComesLate();
    void source_data();
    void source();
    void sourceOfNobody();

private:
    static constexpr qint64 kPid = 4711;
    const RunningApplication m_editor{
        .processIdentifier = kPid, .localizedName = u"Editor"_s, .bundleIdentifier = u"org.example.Editor"_s};
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
    MemoryClock clock;
    MemoryAccessibility accessibility(clock);
    MemoryWorkspace workspace;
    const AccessibleElement field{.processIdentifier = kPid, .address = u"field"_s};
    accessibility.setElement(field, {.role = u"text"_s, .selectedText = selected, .url = {}, .parent = {}});
    accessibility.setFocusedElement(field);
    SelectionReader reader(accessibility, workspace);
    QCOMPARE(QCoro::waitFor(reader.readSelection()), expected);
    accessibility.setFocusedElement(std::nullopt);
    QCOMPARE(QCoro::waitFor(reader.readSelection()), std::optional<QString>());
}

void TestSelectionReader::selectionThatComesLate()
{
    MemoryClock clock;
    MemoryAccessibility accessibility(clock);
    MemoryWorkspace workspace;
    const AccessibleElement field{.processIdentifier = kPid, .address = u"field"_s};
    accessibility.setElement(field, {.role = u"text"_s, .selectedText = u"late"_s, .url = {}, .parent = {}});
    accessibility.setFocusedElement(field);
    accessibility.setDelay(80ms);
    SelectionReader reader(accessibility, workspace);
    std::optional<QString> text;
    const auto task = reader.readSelection().then([&text](std::optional<QString> result) { text = result; });
    clock.advance(100ms);
    QVERIFY(!text);
    clock.advance(60ms);
    QCOMPARE(text, u"late"_s);
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
    MemoryClock clock;
    MemoryAccessibility accessibility(clock);
    MemoryWorkspace workspace;
    workspace.setFrontmostApplication(m_editor);
    accessibility.setFocusedWindowTitle(kPid, title);
    accessibility.setTrusted(isTrusted);
    const CaptureSource source{
        .app = u"Editor"_s, .bundleID = u"org.example.Editor"_s, .title = expected, .url = {}};
    QCOMPARE(SelectionReader(accessibility, workspace).readSource(), std::optional(source));
}

void TestSelectionReader::sourceOfNobody()
{
    MemoryClock clock;
    MemoryAccessibility accessibility(clock);
    MemoryWorkspace workspace;
    const SelectionReader reader(accessibility, workspace);
    QVERIFY(!reader.readSource());
    workspace.setFrontmostApplication(
        RunningApplication{.processIdentifier = QCoreApplication::applicationPid(),
                           .localizedName = u"Vesk"_s,
                           .bundleIdentifier = {}});
    QVERIFY(!reader.readSource());
    workspace.setFrontmostApplication(
        RunningApplication{.processIdentifier = kPid, .localizedName = {}, .bundleIdentifier = {}});
    QVERIFY(!reader.readSource());
}

QTEST_GUILESS_MAIN(TestSelectionReader)

#include "tst_selectionreader.moc"
