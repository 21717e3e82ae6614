// SPDX-License-Identifier: MIT
#include "capture/pageaddress.h"
#include "platform/memory/memoryaccessibility.h"
#include "platform/memory/memoryclock.h"

#include <QCoroTask>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

constexpr qint64 kPid = 4711;

/// A chain of elements, each containing the previous one; the first has the focus.
struct World
{
    MemoryClock clock;
    MemoryAccessibility accessibility{clock};

    void layOut(const QList<std::pair<QString, QString>> &rolesAndUrls)
    {
        for (qsizetype i = 0; i < rolesAndUrls.size(); ++i) {
            const auto &[role, url] = rolesAndUrls.at(i);
            std::optional<AccessibleElement> parent;
            if (i + 1 < rolesAndUrls.size())
                parent = element(i + 1);
            accessibility.setElement(
                element(i),
                {.role = role, .url = url.isNull() ? std::nullopt : std::optional(url), .parent = parent});
        }
        accessibility.setFocusedElement(element(0));
    }

    [[nodiscard]] static AccessibleElement element(qsizetype index)
    {
        return {.processIdentifier = kPid, .address = QString::number(index)};
    }
};

} // namespace

/// Which page is recorded as a selection's source.
class TestPageAddress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void scheme_data();
    void scheme();
    void outermostPageCounts();
    void noPageAroundTheKeyboard();
    void shownForm_data();
    void shownForm();
    void slowAnswer_data();
    void slowAnswer();
};

void TestPageAddress::scheme_data()
{
    QTest::addColumn<QString>("url");
    QTest::addColumn<QString>("expected");
    QTest::newRow("https") << u"https://example.org/a?b#c"_s << u"https://example.org/a?b#c"_s;
    QTest::newRow("http") << u"http://example.org/"_s << u"http://example.org/"_s;
    QTest::newRow("file") << u"file:///home/me/a.html"_s << u"-"_s;
    QTest::newRow("upper case") << u"HTTPS://example.org/"_s << u"-"_s;
    QTest::newRow("only begins like https") << u"https-local://example.org/"_s << u"-"_s;
    QTest::newRow("no scheme") << u"http"_s << u"-"_s;
    QTest::newRow("no address") << QString() << u"-"_s;
}

void TestPageAddress::scheme()
{
    QFETCH(const QString, url);
    QFETCH(const QString, expected);
    World world;
    world.layOut({{u"entry"_s, {}}, {u" %1 "_s.arg(Accessibility::kWebAreaRole), url}, {u"frame"_s, {}}});
    const auto address = QCoro::waitFor(readPageAddress(&world.accessibility, &world.clock, kPid));
    QCOMPARE(address.value_or(u"-"_s), expected);
}

void TestPageAddress::outermostPageCounts()
{
    World world;
    world.layOut({{u"entry"_s, {}},
                  {Accessibility::kWebAreaRole, u"https://frame.example/"_s},
                  {u"section"_s, {}},
                  {Accessibility::kWebAreaRole, u"https://page.example/"_s},
                  {u"frame"_s, {}}});
    QCOMPARE(QCoro::waitFor(readPageAddress(&world.accessibility, &world.clock, kPid)),
             u"https://page.example/"_s);
}

void TestPageAddress::noPageAroundTheKeyboard()
{
    World world;
    world.layOut({{u"entry"_s, u"https://example.org/"_s}, {u"frame"_s, {}}});
    QVERIFY(!QCoro::waitFor(readPageAddress(&world.accessibility, &world.clock, kPid)));
    world.layOut({{Accessibility::kWebAreaRole, u"https://example.org/"_s}});
    QVERIFY(!QCoro::waitFor(readPageAddress(&world.accessibility, &world.clock, kPid + 1)));
    world.accessibility.setFocusedElement(std::nullopt);
    QVERIFY(!QCoro::waitFor(readPageAddress(&world.accessibility, &world.clock, kPid)));
}

void TestPageAddress::shownForm_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("address");
    QTest::addColumn<bool>("isShown");
    const QString plain = u"https://example.org/a?b#c"_s;
    QTest::newRow("without the scheme") << u"example.org/a?b#c"_s << plain << true;
    QTest::newRow("a part of it") << u"example.org/a"_s << plain << false;
    QTest::newRow("another address") << u"example.com/a?b#c"_s << plain << false;
    QTest::newRow("empty path") << u"localhost:8080"_s << u"http://localhost:8080/"_s << true;
    QTest::newRow("slash of an empty path") << u"example.org/"_s << u"https://example.org/"_s << true;
    QTest::newRow("without www.") << u"example.org/a/"_s << u"https://www.example.org/a/"_s << true;
    QTest::newRow("with www.") << u"www.example.org/a/"_s << u"https://www.example.org/a/"_s << true;
    QTest::newRow("www. that is not there") << u"www.example.org"_s << u"https://example.org/"_s << false;
    QTest::newRow("decoded") << u"example.org/café"_s << u"https://example.org/caf%C3%A9"_s << true;
    QTest::newRow("encoded") << u"example.org/caf%C3%A9"_s << u"https://example.org/caf%C3%A9"_s << true;
    QTest::newRow("letters of the host") << u"bücher.de"_s << u"https://xn--bcher-kva.de/"_s << true;
}

void TestPageAddress::shownForm()
{
    QFETCH(const QString, text);
    QFETCH(const QString, address);
    QTEST(isShownForm(text, address), "isShown");
}

void TestPageAddress::slowAnswer_data()
{
    QTest::addColumn<int>("delay");
    QTest::addColumn<bool>("isFound");
    // Six requests: focus, role, parent, role, parent and the address.
    QTest::newRow("in time") << 49 << true;
    QTest::newRow("too slow together") << 51 << false;
    QTest::newRow("hung") << 60000 << false;
}

void TestPageAddress::slowAnswer()
{
    QFETCH(const int, delay);
    QFETCH(const bool, isFound);
    World world;
    world.layOut({{u"entry"_s, {}}, {Accessibility::kWebAreaRole, u"https://example.org/"_s}});
    world.accessibility.setDelay(std::chrono::milliseconds{delay});
    bool isAnswered = false;
    std::optional<QString> address;
    readPageAddress(&world.accessibility, &world.clock, kPid).then([&](std::optional<QString> result) {
        isAnswered = true;
        address = result;
    });
    QVERIFY(!isAnswered);
    world.clock.advance(300ms);
    QVERIFY(isAnswered);
    QCOMPARE(address.has_value(), isFound);
    // A late answer is ignored.
    world.clock.advance(5min);
    QCOMPARE(world.clock.sleeperCount(), 0);
}

QTEST_GUILESS_MAIN(TestPageAddress)

#include "tst_pageaddress.moc"
