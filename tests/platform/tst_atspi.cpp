// SPDX-License-Identifier: MIT
#include "accessibilitydesktop.h"
#include "accessibleapplication.h"

#include "desktop/desktoptest.h"
#include "platform/freedesktop/atspi.h"

#include <QCoroTask>

#include <QTimer>

using namespace Qt::StringLiterals;
using namespace vesk;

using Object = AccessibleApplication::Object;
using Objects = QHash<QString, Object>;

Q_DECLARE_METATYPE(Objects)

namespace {

constexpr QStringView kNone = u"(none)";
/// Tests that are not about time may take as long as the machine needs.
constexpr AtSpiQuestion::Deadlines kPatient{.question = kBound, .call = kBound};
const QString kBoth = u"\ufffc\ufffc"_s;

/// The name of the object; empty for the application itself.
QString nameOf(const std::optional<AccessibleElement> &element)
{
    return element ? element->address.section(u'/', -1) : kNone.toString();
}

Objects window(const Object &editor)
{
    return {{u"root"_s, {.children = {u"frame"_s}}},
            {u"frame"_s, {.isActive = true, .children = {u"editor"_s}}},
            {u"editor"_s, editor}};
}

} // namespace

/// Reading all sorts of applications over the accessibility bus.
class TestAtSpi : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void focusIsFoundBySearch_data();
    void focusIsFoundBySearch();
    void announcedFocusIsOnlyTakenWhileItHolds();
    void focusReturnsAfterTheKeyGrab();
    void applicationIsWoken();
    void selectedText_data();
    void selectedText();
    void selectionWithASilentPartIsRejected();
    void terminalInAPageIsATerminal_data();
    void terminalInAPageIsATerminal();
    void applicationOffTheBusStandsForItself();
    void shownPageIsFoundFromTheAddressBar();
    void busDiesAndReturns();
    void nothingIsReadOnceStopped();

private:
    void show(const Objects &objects);
    [[nodiscard]] QString focus(const AtSpiQuestion::Deadlines &deadlines = kPatient);
    [[nodiscard]] AccessibleElement element(const QString &name) const;
    [[nodiscard]] QString selectionOf(const QString &name,
                                      const AtSpiQuestion::Deadlines &deadlines = kPatient);

    std::unique_ptr<AccessibilityDesktop> m_desktop;
    std::unique_ptr<AtSpi> m_atSpi;
    std::unique_ptr<AccessibleApplication> m_application;
};

void TestAtSpi::initTestCase()
{
    m_desktop = std::make_unique<AccessibilityDesktop>();
    QVERIFY(m_desktop->startBus());
}

void TestAtSpi::init()
{
    m_atSpi = std::make_unique<AtSpi>();
    m_atSpi->start();
    QTRY_VERIFY(!m_desktop->listener().isEmpty());
}

void TestAtSpi::cleanup()
{
    m_application.reset();
    m_atSpi.reset();
    QTRY_VERIFY(m_desktop->listener().isEmpty());
}

void TestAtSpi::show(const Objects &objects)
{
    m_application = std::make_unique<AccessibleApplication>(m_desktop->busAddress(), objects);
    m_desktop->setApplications({u":1.9999"_s, m_application->service()});
}

QString TestAtSpi::focus(const AtSpiQuestion::Deadlines &deadlines)
{
    return nameOf(
        QCoro::waitFor(m_atSpi->focusedElement(m_atSpi->ask(deadlines), QCoreApplication::applicationPid())));
}

AccessibleElement TestAtSpi::element(const QString &name) const
{
    return {.processIdentifier = QCoreApplication::applicationPid(),
            .address = m_application->service() + u' ' + AccessibleApplication::path(name)};
}

QString TestAtSpi::selectionOf(const QString &name, const AtSpiQuestion::Deadlines &deadlines)
{
    const auto selection = QCoro::waitFor(AtSpi::selectedText(m_atSpi->ask(deadlines), element(name)));
    if (!selection)
        return kNone.toString();
    return selection->isPart ? selection->text + u"…"_s : selection->text;
}

void TestAtSpi::focusIsFoundBySearch_data()
{
    QTest::addColumn<Objects>("objects");
    QTest::addColumn<QString>("expected");
    Objects containers = window({.role = u"text"_s, .isFocused = true, .isText = true});
    containers[u"frame"_s].children = {u"pane"_s};
    containers[u"pane"_s] = {.isFocused = true, .children = {u"view"_s, u"editor"_s}};
    containers[u"view"_s] = {.isFocused = true, .children = {}};
    QTest::newRow("containers claim it too") << containers << u"editor"_s;
    Objects deep = window({.role = u"text"_s, .isFocused = true, .isText = true});
    deep[u"frame"_s].children = {u"box0"_s};
    for (int depth = 0; depth < 20; ++depth) {
        QStringList children;
        for (int index = 0; index < 10; ++index) {
            children.append(u"button%1x%2"_s.arg(depth).arg(index));
            deep[children.last()] = {};
        }
        children.append(depth == 19 ? u"editor"_s : u"box%1"_s.arg(depth + 1));
        deep[u"box%1"_s.arg(depth)] = {.children = children};
    }
    QTest::newRow("deep among many") << deep << u"editor"_s;
    Objects windows = window({.role = u"text"_s, .isFocused = true, .isText = true});
    windows[u"root"_s].children = {u"other"_s, u"frame"_s};
    windows[u"other"_s] = {.children = {u"field"_s}};
    windows[u"field"_s] = {.isFocused = true, .isText = true};
    QTest::newRow("other window claims it too") << windows << u"editor"_s;
    Objects inactive = window({.role = u"text"_s, .isFocused = true, .isText = true});
    inactive[u"frame"_s].isActive = false;
    QTest::newRow("no window is active") << inactive << u"editor"_s;
    QTest::newRow("no text") << window({.role = u"push button"_s, .isFocused = true}) << u"editor"_s;
    QTest::newRow("nothing claims it") << window({.isText = true}) << kNone.toString();
    Objects menu = window({.isVisible = false, .children = {u"item"_s}});
    menu[u"item"_s] = {.isFocused = true, .isText = true};
    QTest::newRow("closed menu") << menu << kNone.toString();
    Objects circle = window({.children = {u"frame"_s, u"editor"_s}});
    QTest::newRow("closes on itself") << circle << kNone.toString();
}

void TestAtSpi::focusIsFoundBySearch()
{
    QFETCH(const Objects, objects);
    QFETCH(const QString, expected);
    show(objects);
    QCOMPARE(focus(), expected);
    // Toolkits that search by themselves look into closed menus too, but not endlessly.
    const QByteArrayView row(QTest::currentDataTag());
    if (row == "closed menu" || row == "closes on itself")
        return;
    m_application->manner().hasCollection = true;
    QCOMPARE(focus(), expected);
}

void TestAtSpi::announcedFocusIsOnlyTakenWhileItHolds()
{
    Objects objects = window({.isText = true});
    objects[u"frame"_s].children = {u"editor"_s, u"field"_s};
    objects[u"field"_s] = {.isFocused = true, .isText = true};
    show(objects);
    const auto announce = [this](const QString &name, bool isFocused) {
        m_application->announceFocus(name, isFocused);
        // The search finds the field; the announcement only takes effect once it has been received.
        m_application->object(name).isFocused = isFocused;
    };
    // Both claim the focus, and the announcement decides.
    announce(u"editor"_s, true);
    m_application->object(u"frame"_s).children = {u"field"_s, u"editor"_s};
    QTRY_COMPARE(focus(), u"editor"_s);
    // GTK 4 does not announce the first focus of a new widget.
    m_application->object(u"editor"_s).isFocused = false;
    QCOMPARE(focus(), u"field"_s);
    // The window that contained it is closed.
    announce(u"gone"_s, true);
    m_application->object(u"frame"_s).children = {u"field"_s};
    QTRY_COMPARE(focus(), u"field"_s);
}

void TestAtSpi::focusReturnsAfterTheKeyGrab()
{
    show(window({.isFocused = false, .isText = true}));
    QTimer::singleShot(20, this, [this] { m_application->object(u"editor"_s).isFocused = true; });
    QCOMPARE(focus(), u"editor"_s);
}

void TestAtSpi::applicationIsWoken()
{
    show(window({.isFocused = true, .isText = true}));
    m_application->manner().isAsleep = true;
    m_application->manner().hasCollection = true;
    QCOMPARE(focus(), u"editor"_s);
}

void TestAtSpi::selectedText_data()
{
    QTest::addColumn<Objects>("objects");
    QTest::addColumn<QString>("expected");
    const QString web = u"document web"_s;
    const auto plain = [](const QString &text, const QList<std::pair<int, int>> &selections) {
        return Object{
            .role = u"text"_s, .isEditable = true, .isText = true, .text = text, .selections = selections};
    };
    QTest::newRow("part") << window(plain(u"one two"_s, {{4, 7}})) << u"two"_s;
    QTest::newRow("backwards, beyond the basic plane")
        << window(plain(u"\U0001f600 two"_s, {{3, 0}})) << u"\U0001f600 t"_s;
    QTest::newRow("begins with U+FEFF") << window(plain(u"a\ufeffone"_s, {{1, 5}})) << u"\ufeffone"_s;
    QTest::newRow("nothing selected is sure") << window(plain(u"one"_s, {})) << QString();
    QTest::newRow("empty selection") << window(plain(u"one"_s, {{1, 1}})) << QString();
    QTest::newRow("several ranges") << window(plain(u"one two three"_s, {{0, 3}, {8, 13}}))
                                    << u"one\nthree"_s;
    Object list = plain(u"one"_s, {});
    list.hasUnknownSelection = true;
    QTest::newRow("list that cannot tell") << window(list) << kNone.toString();
    QTest::newRow("no text at all") << window({.isEditable = true}) << kNone.toString();
    QTest::newRow("page that selects nothing is in doubt")
        << window({.role = web, .isText = true, .text = u"x"_s}) << kNone.toString();
    // Selected from "ne" in the first paragraph to "two" in the second paragraph's link.
    Objects page = window(
        {.role = web, .isText = true, .text = kBoth, .selections = {{0, 2}}, .children = {u"p1"_s, u"p2"_s}});
    page[u"p1"_s] = {.role = u"paragraph"_s, .isText = true, .text = u"one"_s, .selections = {{1, 3}}};
    page[u"p2"_s] = {.role = u"paragraph"_s,
                     .isText = true,
                     .text = u"see \ufffc"_s,
                     .selections = {{0, 5}},
                     .children = {u"link"_s}};
    page[u"link"_s] = {.role = u"link"_s, .isText = true, .text = u"two three"_s, .selections = {{0, 3}}};
    QTest::newRow("page, from block to link") << page << u"ne\nsee two"_s;
    Objects asides = page;
    asides[u"editor"_s] = {.role = web,
                           .isText = true,
                           .text = u"a\ufffcb\ufffc\ufffcc"_s,
                           .selections = {{0, 6}},
                           .children = {u"password"_s, u"p1"_s, u"table"_s}};
    asides[u"p1"_s].selections = {};
    asides[u"password"_s] = {.role = u"password text"_s, .isText = true, .text = u"secret"_s};
    asides[u"table"_s] = {.role = u"table"_s, .children = {u"cell1"_s, u"cell2"_s}};
    asides[u"cell1"_s] = {.role = u"table cell"_s, .isText = true, .text = u"x"_s};
    asides[u"cell2"_s] = {.role = u"table cell"_s, .isText = true, .text = u"y"_s};
    QTest::newRow("page, blocks inside, no field") << asides << u"ab\none\nx\ty\nc"_s;
    Objects hole = page;
    hole.remove(u"link"_s);
    QTest::newRow("page with a hole") << hole << kNone.toString();
    Objects endless = page;
    endless[u"p1"_s] = {.role = u"paragraph"_s,
                        .isText = true,
                        .text = u"a\ufffcb"_s,
                        .selections = {{0, 3}},
                        .children = {u"p1"_s}};
    QTest::newRow("page that contains itself") << endless << kNone.toString();
    Objects link = page;
    link[u"editor"_s].role = u"section"_s;
    link[u"frame"_s].role = web;
    link[u"frame"_s].isText = true;
    link[u"frame"_s].text = u"\ufffc"_s;
    link[u"frame"_s].selections = {{0, 1}};
    link[u"editor"_s].selections = {{0, 2}};
    QTest::newRow("in a page") << link << u"ne\nsee two"_s;
    Objects writer = window({.role = u"paragraph"_s,
                             .isEditable = true,
                             .isText = true,
                             .text = u"last"_s,
                             .selections = {{0, 2}}});
    writer[u"frame"_s].children = {u"p0"_s, u"p1"_s, u"p2"_s, u"editor"_s, u"p3"_s};
    writer[u"p0"_s] = {.role = u"paragraph"_s, .isText = true, .text = u"before"_s};
    writer[u"p1"_s] = {.role = u"paragraph"_s, .isText = true, .text = u"first"_s, .selections = {{2, 5}}};
    writer[u"p2"_s] = {.role = u"paragraph"_s, .isText = true};
    writer[u"p3"_s] = writer.value(u"p0"_s);
    QTest::newRow("paragraphs") << writer << u"rst\n\nla"_s;
    Objects picture = writer;
    picture[u"p2"_s].isText = false;
    QTest::newRow("paragraphs around a picture") << picture << kNone.toString();
    Objects caret = writer;
    caret[u"editor"_s].selections = {};
    QTest::newRow("paragraphs before the caret's") << caret << u"rst"_s;
    Objects scrolled = writer;
    scrolled[u"frame"_s].children.removeFirst();
    scrolled[u"p1"_s].selections = {{0, 5}};
    QTest::newRow("paragraphs from above the window") << scrolled << u"first\n\nla…"_s;
    Objects below = writer;
    below[u"frame"_s].children.removeLast();
    below[u"editor"_s].selections = {{0, 4}};
    QTest::newRow("paragraphs to below the window") << below << u"rst\n\nlast…"_s;
}

void TestAtSpi::selectedText()
{
    QFETCH(const Objects, objects);
    QFETCH(const QString, expected);
    show(objects);
    QCOMPARE(selectionOf(u"editor"_s), expected);
    m_application->manner().hasLinks = true;
    QCOMPARE(selectionOf(u"editor"_s), expected);
}

void TestAtSpi::selectionWithASilentPartIsRejected()
{
    // One block of many does not answer: the others alone are not the selection.
    const int count = 20;
    Objects page = window({.role = u"document web"_s,
                           .isText = true,
                           .text = QString(count, u'\ufffc'),
                           .selections = {{0, count}}});
    for (int index = 0; index < count; ++index) {
        const QString name = u"p%1"_s.arg(index);
        page[u"editor"_s].children.append(name);
        page[name] = {.role = u"paragraph"_s, .isText = true, .text = u"x"_s, .selections = {{0, 1}}};
    }
    show(page);
    QVERIFY(selectionOf(u"editor"_s, {}) != kNone);
    m_application->manner().silentObject = u"p7"_s;
    QCOMPARE(selectionOf(u"editor"_s, {}), kNone);
}

void TestAtSpi::terminalInAPageIsATerminal_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("role");
    QTest::newRow("xterm.js") << u"class"_s << u"xterm-helper-textarea"_s << u"terminal"_s;
    QTest::newRow("hterm") << u"tag"_s << u"x-screen"_s << u"terminal"_s;
    QTest::newRow("search field") << u"class"_s << u"search"_s << u"entry"_s;
    QTest::newRow("no attributes") << QString() << QString() << u"entry"_s;
}

void TestAtSpi::terminalInAPageIsATerminal()
{
    QFETCH(const QString, attribute);
    QFETCH(const QString, value);
    Object field{.role = u"entry"_s, .isFocused = true, .isText = true};
    if (!attribute.isEmpty())
        field.attributes.insert(attribute, value);
    show(window(field));
    const auto role = QCoro::waitFor(AtSpi::role(m_atSpi->ask(kPatient), element(u"editor"_s)));
    QTEST(role.value_or(kNone.toString()), "role");
}

void TestAtSpi::applicationOffTheBusStandsForItself()
{
    m_desktop->setApplications({u":1.9999"_s});
    QCOMPARE(focus(), QString());
    m_desktop->setSilent(true);
    QCOMPARE(focus({}), kNone);
    m_desktop->setSilent(false);
}

void TestAtSpi::shownPageIsFoundFromTheAddressBar()
{
    Objects browser = window({.role = u"entry"_s, .isFocused = true, .isText = true});
    browser[u"frame"_s].children = {u"editor"_s, u"hidden"_s, u"page"_s};
    browser[u"hidden"_s] = {.role = u"document web"_s, .isVisible = false};
    browser[u"page"_s] = {.role = u"document web"_s, .children = {u"inner"_s}};
    browser[u"inner"_s] = {.role = u"document web"_s};
    show(browser);
    const auto shown = [this] {
        const qint64 process = QCoreApplication::applicationPid();
        return nameOf(QCoro::waitFor(AtSpi::shownPage(m_atSpi->ask(kPatient), process)));
    };
    QCOMPARE(shown(), kNone);
    m_application->manner().hasCollection = true;
    QCOMPARE(shown(), u"page"_s);
}

void TestAtSpi::busDiesAndReturns()
{
    show(window({.isFocused = true, .isText = true}));
    m_application->manner().isSilent = true;
    const QString lost = m_desktop->listener();
    // A question is in progress when the bus dies.
    QTimer::singleShot(0, this, [this] { m_desktop->killBus(); });
    QCOMPARE(selectionOf(u"editor"_s), kNone);
    // Without a bus, it is unknown whether the application is on it.
    QTRY_COMPARE(focus(), kNone);
    QVERIFY(m_desktop->startBus());
    QTRY_VERIFY(!m_desktop->listener().isEmpty());
    show(window({.isFocused = true, .isText = true}));
    QCOMPARE(focus(), u"editor"_s);
}

void TestAtSpi::nothingIsReadOnceStopped()
{
    show(window(
        {.isFocused = true, .isEditable = true, .isText = true, .text = u"x"_s, .selections = {{0, 1}}}));
    // The user withdraws consent while a question is in progress.
    QTimer::singleShot(0, this, [this] { m_atSpi->stop(); });
    QCOMPARE(selectionOf(u"editor"_s), kNone);
    QTRY_VERIFY(m_desktop->listener().isEmpty());
    const int calls = m_application->calls();
    QCOMPARE(focus(), kNone);
    QCOMPARE(selectionOf(u"editor"_s), kNone);
    QCOMPARE(m_application->calls(), calls);
    m_atSpi->start();
    QTRY_VERIFY(!m_desktop->listener().isEmpty());
    QCOMPARE(selectionOf(u"editor"_s), u"x"_s);
}

DESKTOP_TEST_MAIN(TestAtSpi)
#include "tst_atspi.moc"
