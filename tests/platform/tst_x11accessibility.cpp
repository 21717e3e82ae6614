// SPDX-License-Identifier: MIT
#include "accessibilitydesktop.h"
#include "accessibleapplication.h"
#include "x11test.h"

#include "desktop/plainwindow.h"
#include "platform/freedesktop/consent.h"
#include "platform/freedesktop/inidefaults.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11accessibility.h"
#include "platform/x11/x11pasteboard.h"
#include "platform/x11/x11workspace.h"
#include "virtualdesktop/selectionthread.h"

#include <QCoroTask>

#include <QMutex>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace vesk;

using Object = AccessibleApplication::Object;
using Objects = QHash<QString, Object>;
using Finding = SelectedText::Finding;

Q_DECLARE_METATYPE(Objects)

namespace {

/// The text that an application offers in PRIMARY.
class Offer
{
public:
    explicit Offer(QByteArray text)
        : m_text(std::move(text))
        , m_thread(SelectionThread::own(qEnvironmentVariable("DISPLAY"), "PRIMARY",
                                        [this](DisplayConnection &display, const xcb_generic_event_t &event) {
                                            answer(display, event);
                                        }))
    {
    }

    void claimAgain(const QByteArray &text)
    {
        {
            const QMutexLocker lock(&m_mutex);
            m_text = text;
        }
        m_thread->claimAgain();
    }

    /// Owns it with a part of a window, as terminals do.
    void moveInto(const PlainWindow &window, DisplayConnection &display) const
    {
        const std::array<quint32, 2> size{300, 300};
        xcb_reparent_window(display.xcb(), m_thread->window(), window.window().id, 0, 0);
        xcb_configure_window(display.xcb(), m_thread->window(),
                             XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data());
        xcb_map_window(display.xcb(), m_thread->window());
        xcb_flush(display.xcb());
    }

private:
    void answer(DisplayConnection &display, const xcb_generic_event_t &event)
    {
        const auto request = SelectionThread::requestIn(event);
        if (!request)
            return;
        const QMutexLocker lock(&m_mutex);
        const xcb_atom_t text = display.atom("UTF8_STRING");
        const bool isKnown = request->target == text || request->target == display.atom("TARGETS");
        if (request->target == text)
            SelectionThread::write(display, *request, text, 8, m_text);
        else if (isKnown)
            SelectionThread::writeAtoms(display, *request, {text});
        SelectionThread::notify(display, *request, isKnown);
    }

    QMutex m_mutex;
    QByteArray m_text;
    // Must end before what it uses.
    std::unique_ptr<SelectionThread> m_thread;
};

Objects window(const Object &focused)
{
    return {{u"root"_s, {.children = {u"frame"_s}}},
            {u"frame"_s, {.isActive = true, .children = {u"focused"_s}}},
            {u"focused"_s, focused}};
}

Object field(const QString &text, const QList<std::pair<int, int>> &selections)
{
    return {.role = u"entry"_s,
            .isFocused = true,
            .isEditable = true,
            .isText = true,
            .text = text,
            .selections = selections};
}

} // namespace

/// What counts as selected for applications that give different information to the X server and to the
/// accessibility bus. They are all in this process.
class TestX11Accessibility : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void primaryNeedsConfirmation_data();
    void primaryNeedsConfirmation();
    void unansweredQuestionIsNotNo_data();
    void unansweredQuestionIsNotNo();
    void passwordStaysSecretWhenTheFocusMoves();
    void passwordIsSecretWhereThePageMovesTheFocusAtOnce_data();
    void passwordIsSecretWhereThePageMovesTheFocusAtOnce();
    void bulletsOfAPageAreNoText();
    void claimFromAnUnknownPlaceNeedsConfirmation();
    void terminalsSelectionEndsByAClickIntoIt();
    void emacsClaimsAgainOnDeselecting();
    void selectionFromBeforeTheStartIsNotFresh();

private:
    /// Shows the application's window, of this class, with the focus.
    void bringForward(const QByteArray &name);
    void startVesk(const AtSpiQuestion::Deadlines &deadlines = {.question = kBound, .call = kBound});
    void showOnBus(const Objects &objects);
    /// Clicks the window near its top left corner, wherever the window manager has put it.
    void click(const PlainWindow &window);
    void pressKey() { m_desktop->keyboard().tap({XK_x}); }
    [[nodiscard]] SelectedText read();

    QTemporaryDir m_folder;
    std::unique_ptr<AccessibilityDesktop> m_bus;
    std::unique_ptr<PlainWindow> m_window;
    std::unique_ptr<AccessibleApplication> m_application;
    std::unique_ptr<IniDefaults> m_defaults;
    std::unique_ptr<Consent> m_consent;
    std::unique_ptr<RawInput> m_input;
    std::unique_ptr<X11Workspace> m_workspace;
    std::unique_ptr<X11Accessibility> m_accessibility;
    /// Receives the same claims.
    std::unique_ptr<X11Pasteboard> m_primary;
};

void TestX11Accessibility::initTestCase()
{
    m_bus = std::make_unique<AccessibilityDesktop>();
    QVERIFY(m_bus->startBus());
    X11Test::initTestCase();
}

void TestX11Accessibility::init()
{
    m_bus->setSilent(false);
    m_bus->setApplications({});
    m_defaults = std::make_unique<IniDefaults>(m_folder.filePath(u"Vesk.conf"_s));
    m_consent = std::make_unique<Consent>(*m_defaults);
    m_consent->setGiven(true);
}

void TestX11Accessibility::cleanup()
{
    m_accessibility.reset();
    m_primary.reset();
    m_workspace.reset();
    m_input.reset();
    m_application.reset();
    m_window.reset();
    QTRY_VERIFY(m_bus->listener().isEmpty());
}

void TestX11Accessibility::cleanupTestCase()
{
    X11Test::cleanupTestCase();
    m_bus.reset();
}

void TestX11Accessibility::bringForward(const QByteArray &name)
{
    m_window = std::make_unique<PlainWindow>(m_desktop->display(), u"Application"_s, QRect(20, 20, 400, 400));
    const QByteArray classes = name.toLower() + '\0' + name + '\0';
    xcb_change_property(m_desktop->display().xcb(), XCB_PROP_MODE_REPLACE, m_window->window().id,
                        XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, quint32(classes.size()), classes.constData());
    m_window->show();
    // A window manager that has just started may have missed the window.
    QVERIFY(m_desktop->display().waitUntil(kBound, [this] {
        m_desktop->windows().activate(m_window->window());
        return m_desktop->windows().waitActive(m_window->window(), std::chrono::milliseconds{500});
    }));
}

void TestX11Accessibility::startVesk(const AtSpiQuestion::Deadlines &deadlines)
{
    // Objects created now must not receive earlier events.
    settle();
    m_input = std::make_unique<RawInput>(*m_connection);
    m_workspace = std::make_unique<X11Workspace>(*m_connection);
    m_primary = std::make_unique<X11Pasteboard>(*m_connection, X11Pasteboard::Kind::Primary);
    m_accessibility =
        std::make_unique<X11Accessibility>(*m_connection, *m_input, *m_workspace, *m_consent, deadlines);
    QTRY_VERIFY(!m_bus->listener().isEmpty());
}

void TestX11Accessibility::showOnBus(const Objects &objects)
{
    m_application = std::make_unique<AccessibleApplication>(m_bus->busAddress(), objects);
    m_bus->setApplications({m_application->service()});
}

void TestX11Accessibility::click(const PlainWindow &window)
{
    const auto placed = m_desktop->windows().findViewableIf(
        [&window](const Window &each) { return each.id == window.window().id; });
    QVERIFY(placed);
    m_desktop->pointer().click(placed->geometry.topLeft() + QPoint(30, 30));
}

SelectedText TestX11Accessibility::read()
{
    settle();
    return QCoro::waitFor(m_accessibility->selectedText());
}

void TestX11Accessibility::primaryNeedsConfirmation_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<Objects>("objects");
    QTest::addColumn<Finding>("finding");
    QTest::addColumn<QString>("text");
    const QByteArray editor = "Editor";
    const QByteArray terminal = "XTerm";
    // PRIMARY is "open sesame" in all rows.
    QTest::newRow("off the bus") << editor << Objects() << Finding::Unknown << QString();
    QTest::newRow("terminal off the bus") << terminal << Objects() << Finding::Selected << u"open sesame"_s;
    QTest::newRow("asks for a password") << "Pinentry"_qba << Objects() << Finding::Nothing << QString();
    QTest::newRow("nothing claims the focus")
        << editor << window({.isText = true}) << Finding::Unknown << QString();
    QTest::newRow("field that agrees")
        << editor << window(field(u"say open sesame"_s, {{4, 15}})) << Finding::Selected << u"open sesame"_s;
    QTest::newRow("field with another selection")
        << editor << window(field(u"another text"_s, {{0, 7}})) << Finding::Selected << u"another"_s;
    QTest::newRow("field with nothing selected")
        << editor << window(field(u"another text"_s, {})) << Finding::Unknown << QString();
    Object password = field(u"open sesame"_s, {{0, 11}});
    password.role = u"password text"_s;
    QTest::newRow("password field") << editor << window(password) << Finding::Nothing << QString();
    QTest::newRow("password field of a terminal")
        << terminal << window(password) << Finding::Nothing << QString();
    const QString bullets(11, QChar(0x2022));
    QTest::newRow("field that shows bullets")
        << editor << window(field(bullets, {{0, 11}})) << Finding::Unknown << QString();
    const auto page = [](const QString &text) {
        return window({.role = u"document web"_s,
                       .isFocused = true,
                       .isText = true,
                       .text = text,
                       .selections = {{0, int(text.size())}}});
    };
    QTest::newRow("page that agrees but for white space")
        << editor << page(u"open \n sesame"_s) << Finding::Selected << u"open sesame"_s;
    QTest::newRow("page with another selection")
        << editor << page(u"another"_s) << Finding::Selected << u"open sesame"_s;
    // Writer only exposes the paragraphs on the screen.
    Object paragraph = field(u"sesame"_s, {{0, 6}});
    paragraph.role = u"paragraph"_s;
    Objects scrolled = window(paragraph);
    scrolled[u"frame"_s].children = {u"first"_s, u"focused"_s};
    scrolled[u"first"_s] = {
        .role = u"paragraph"_s, .isText = true, .text = u"open"_s, .selections = {{0, 4}}};
    QTest::newRow("paragraphs that agree") << editor << scrolled << Finding::Selected << u"open sesame"_s;
    scrolled[u"first"_s].selections = {{0, 2}};
    scrolled[u"focused"_s].selections = {{0, 3}};
    QTest::newRow("paragraphs whose text is another's")
        << editor << scrolled << Finding::Unknown << QString();
    Object list = field(u"open sesame"_s, {});
    list.hasUnknownSelection = true;
    QTest::newRow("list that cannot tell") << editor << window(list) << Finding::Unknown << QString();
}

void TestX11Accessibility::primaryNeedsConfirmation()
{
    QFETCH(const QByteArray, name);
    QFETCH(const Objects, objects);
    bringForward(name);
    startVesk();
    if (!objects.isEmpty())
        showOnBus(objects);
    pressKey();
    settle();
    const Offer offer("open sesame");
    // The owner of PRIMARY has little time to answer.
    QFETCH(const Finding, finding);
    QTRY_COMPARE(read().finding, finding);
    QFETCH(const QString, text);
    QTRY_COMPARE(read().text, text);
    // The user presses another key, and the application still owns PRIMARY.
    pressKey();
    QVERIFY(!read().isClaimed);
}

void TestX11Accessibility::unansweredQuestionIsNotNo_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("silentObject");
    QTest::newRow("registry") << "Editor"_qba << QString();
    QTest::newRow("application") << "Editor"_qba << u"root"_s;
    QTest::newRow("focused object") << "Editor"_qba << u"focused"_s;
    QTest::newRow("focused object of a terminal") << "XTerm"_qba << u"focused"_s;
}

void TestX11Accessibility::unansweredQuestionIsNotNo()
{
    QFETCH(const QByteArray, name);
    QFETCH(const QString, silentObject);
    bringForward(name);
    startVesk({});
    showOnBus(window(field(u"open sesame"_s, {{0, 11}})));
    pressKey();
    settle();
    const Offer offer("open sesame");
    QTRY_COMPARE(read().finding, Finding::Selected);
    m_bus->setSilent(silentObject.isEmpty());
    m_application->manner().silentObject = silentObject;
    const SelectedText selected = read();
    QCOMPARE(selected.finding, Finding::Unknown);
    QCOMPARE(selected.text, QString());
    QTRY_VERIFY(read().isSilent);
}

void TestX11Accessibility::passwordStaysSecretWhenTheFocusMoves()
{
    bringForward("Editor");
    startVesk();
    Object password = field(u"open sesame"_s, {{0, 11}});
    password.role = u"password text"_s;
    Objects objects = window(password);
    objects[u"frame"_s].children.append(u"terminal"_s);
    // Where PRIMARY alone would be enough.
    objects[u"terminal"_s] = {.role = u"terminal"_s, .isText = true};
    showOnBus(objects);
    m_application->announceFocus(u"focused"_s, true);
    pressKey();
    settle();
    Offer offer("open sesame");
    settle();
    m_application->announceFocus(u"focused"_s, false);
    m_application->object(u"focused"_s).isFocused = false;
    m_application->object(u"terminal"_s).isFocused = true;
    m_application->announceFocus(u"terminal"_s, true);
    QCOMPARE(read().finding, Finding::Nothing);
    // The next selection is not the field's.
    offer.claimAgain("ls");
    QTRY_COMPARE(read().text, u"ls"_s);
}

void TestX11Accessibility::passwordIsSecretWhereThePageMovesTheFocusAtOnce_data()
{
    QTest::addColumn<bool>("isFieldGone");
    QTest::newRow("to the page") << false;
    QTest::newRow("and removes the field") << true;
}

/// The bus reports the focus before the X server reports the selection.
void TestX11Accessibility::passwordIsSecretWhereThePageMovesTheFocusAtOnce()
{
    QFETCH(const bool, isFieldGone);
    bringForward("Editor");
    startVesk();
    Object password = field(u"open sesame"_s, {{0, 11}});
    password.role = u"password text"_s;
    Objects objects = window(password);
    objects[u"frame"_s].children.append(u"page"_s);
    objects[u"page"_s] = {.role = u"document web"_s, .isText = true, .text = u"another"_s};
    showOnBus(objects);
    m_application->announceFocus(u"focused"_s, true);
    pressKey();
    settle();
    m_application->announceFocus(u"focused"_s, false);
    m_application->object(u"focused"_s).isFocused = false;
    m_application->object(u"page"_s).isFocused = true;
    m_application->announceFocus(u"page"_s, true);
    if (isFieldGone)
        m_application->removeObject(u"focused"_s);
    settle();
    const Offer offer("open sesame");
    settle();
    // Until it is known who claimed PRIMARY.
    QTest::qWait(500);
    QCOMPARE(read().text, QString());
}

/// As in a page that contains a password field and is selected as a whole.
void TestX11Accessibility::bulletsOfAPageAreNoText()
{
    const QString bullets(11, QChar(0x2022));
    bringForward("Editor");
    startVesk();
    showOnBus(window({.role = u"document web"_s,
                      .isFocused = true,
                      .isText = true,
                      .text = bullets,
                      .selections = {{0, 11}}}));
    pressKey();
    settle();
    const Offer offer(bullets.toUtf8());
    QTest::qWait(500);
    const SelectedText selected = read();
    QVERIFY(selected.isClaimed);
    QCOMPARE(selected.text, QString());
}

/// The object that had the focus when PRIMARY was claimed did not say whether it is a password field.
void TestX11Accessibility::claimFromAnUnknownPlaceNeedsConfirmation()
{
    bringForward("Editor");
    startVesk();
    showOnBus(window({.role = u"document web"_s,
                      .isFocused = true,
                      .isText = true,
                      .text = u"another"_s,
                      .selections = {{0, 7}}}));
    m_application->manner().isSilent = true;
    pressKey();
    settle();
    const Offer offer("open sesame");
    // Until the question has been abandoned.
    QTest::qWait(1500);
    m_application->manner().isSilent = false;
    QTRY_COMPARE(read().finding, Finding::Unknown);
    QCOMPARE(read().text, QString());
    m_application->object(u"focused"_s).text = u"open sesame"_s;
    m_application->object(u"focused"_s).selections = {{0, 11}};
    QTRY_COMPARE(read().text, u"open sesame"_s);
}

void TestX11Accessibility::terminalsSelectionEndsByAClickIntoIt()
{
    bringForward("XTerm");
    startVesk();
    pressKey();
    settle();
    Offer offer("output");
    offer.moveInto(*m_window, m_desktop->display());
    settle();
    QTRY_COMPARE(read().text, u"output"_s);

    // It stays highlighted after a key, a switch to another window and a click there.
    pressKey();
    PlainWindow other(m_desktop->display(), u"Other"_s, QRect(600, 500, 400, 400));
    other.show();
    QVERIFY(m_desktop->windows().waitActive(other.window(), kBound));
    click(other);
    QCOMPARE(read().finding, Finding::Unknown);
    m_desktop->windows().activate(m_window->window());
    QVERIFY(m_desktop->windows().waitActive(m_window->window(), kBound));
    QTRY_COMPARE(read().text, u"output"_s);

    click(*m_window);
    QCOMPARE(read().finding, Finding::Unknown);
    offer.claimAgain("more output");
    QTRY_COMPARE(read().text, u"more output"_s);
}

void TestX11Accessibility::emacsClaimsAgainOnDeselecting()
{
    bringForward("Emacs");
    startVesk();
    pressKey();
    settle();
    Offer offer("w");
    offer.moveInto(*m_window, m_desktop->display());
    const auto act = [&](const QByteArray &text) {
        pressKey();
        settle();
        offer.claimAgain(text);
        settle();
    };
    act("word");
    QTRY_COMPARE(read().text, u"word"_s);
    // Several claims for one press are one selection.
    offer.claimAgain("word");
    QTRY_COMPARE(read().text, u"word"_s);
    act("word");
    QCOMPARE(read().finding, Finding::Unknown);
    act("words");
    QTRY_COMPARE(read().text, u"words"_s);
    // Control-G ends the region without a claim, and the same text may be selected again afterwards.
    pressKey();
    QCOMPARE(read().finding, Finding::Unknown);
    QTest::qWait(300);
    act("words");
    QTRY_COMPARE(read().text, u"words"_s);
}

void TestX11Accessibility::selectionFromBeforeTheStartIsNotFresh()
{
    bringForward("XTerm");
    const Offer offer("output");
    offer.moveInto(*m_window, m_desktop->display());
    startVesk();
    QCOMPARE(read().finding, Finding::Unknown);
}

DESKTOP_TEST_MAIN(TestX11Accessibility)
#include "tst_x11accessibility.moc"
