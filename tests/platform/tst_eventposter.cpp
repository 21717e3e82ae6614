// SPDX-License-Identifier: MIT
#include "x11test.h"

#include "platform/freedesktop/systemclock.h"
#include "platform/x11/keytaker.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11eventposter.h"
#include "platform/x11/x11workspace.h"
#include "virtualdesktop/texteditor.h"

#include <QCoroTask>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Keys sent to real applications, which must get no key but those, and some none at all.
class TestEventPoster : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void takersAreTold_data();
    void takersAreTold();
    void heldLetterIsWaitedFor();
    void letterThatStaysDownIsGivenUp();
    void hungApplicationIsNotAskedToCopyLater();

private:
    std::unique_ptr<TextEditor> m_editor;
    std::unique_ptr<RawInput> m_input;
    std::unique_ptr<X11Workspace> m_workspace;
    SystemClock m_clock;
    std::unique_ptr<X11EventPoster> m_poster;
    const QStringList m_lines = {u"Water the lemon tree"_s, u"Ask about the train"_s};
};

void TestEventPoster::initTestCase()
{
    X11Test::initTestCase();
    QVERIFY(m_connection);
    m_input = std::make_unique<RawInput>(*m_connection);
    m_workspace = std::make_unique<X11Workspace>(*m_connection);
    m_poster = std::make_unique<X11EventPoster>(*m_connection, *m_input, *m_workspace, m_clock);
    m_editor = TextEditor::open(*m_desktop, m_lines);
    VERIFY_ON(*m_desktop, m_editor);
}

void TestEventPoster::cleanupTestCase()
{
    m_editor.reset();
    m_poster.reset();
    m_workspace.reset();
    m_input.reset();
    X11Test::cleanupTestCase();
}

void TestEventPoster::takersAreTold_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<bool>("hasTerminalEntry");
    QTest::addColumn<bool>("getsCopy");
    QTest::addColumn<bool>("getsPaste");
    QTest::newRow("editor") << u"Mousepad"_s << false << true << true;
    QTest::newRow("terminal by its class") << u"Kitty"_s << false << false << true;
    QTest::newRow("terminal without a clipboard") << u"XTerm"_s << false << false << false;
    QTest::newRow("unknown terminal by its entry") << u"Newterm"_s << true << false << true;
    QTest::newRow("Emacs") << u"Emacs"_s << false << false << true;
    QTest::newRow("password prompt") << u"Pinentry"_s << false << false << false;
}

void TestEventPoster::takersAreTold()
{
    QFETCH(const QString, className);
    QFETCH(const bool, hasTerminalEntry);
    QFETCH(const bool, getsCopy);
    QFETCH(const bool, getsPaste);
    DesktopEntry entry;
    entry.isTerminal = hasTerminalEntry;
    WindowIdentity window;
    window.className = className;
    const KeyTaker taker = keyTakerOf(window, &entry);
    QCOMPARE(!keysFor(EventPoster::Command::Copy, taker).isEmpty(), getsCopy);
    QCOMPARE(!keysFor(EventPoster::Command::Paste, taker).isEmpty(), getsPaste);
}

void TestEventPoster::heldLetterIsWaitedFor()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    Keyboard &keyboard = m_desktop->keyboard();
    for (const xcb_keysym_t key : {XK_Super_L, XK_Alt_L, XK_n})
        keyboard.press(key);
    std::optional<bool> isPosted;
    const auto task = m_poster->post(EventPoster::Command::Copy, [] { return true; }).then([&](bool posted) {
        isPosted = posted;
    });
    QTest::qWait(200);
    QVERIFY(!isPosted);
    keyboard.release(XK_n); // The modifiers stay down.
    QTRY_VERIFY(isPosted);
    QVERIFY(*isPosted);
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [this] {
        return m_desktop->display().readSelection("CLIPBOARD", 1s) == m_lines.at(1);
    }));
    keyboard.release(XK_Alt_L);
    keyboard.release(XK_Super_L);
    QCOMPARE(m_editor->text(), m_lines.join(u'\n') + u'\n');
}

void TestEventPoster::letterThatStaysDownIsGivenUp()
{
    const QList<xcb_keysym_t> keys{XK_Super_L, XK_Alt_L, XK_n};
    for (const xcb_keysym_t key : keys)
        m_desktop->keyboard().press(key);
    QVERIFY(!QCoro::waitFor(m_poster->post(EventPoster::Command::Copy, [] { return true; })));
    for (const xcb_keysym_t key : keys)
        m_desktop->keyboard().release(key);
}

void TestEventPoster::hungApplicationIsNotAskedToCopyLater()
{
    m_desktop->windows().activate(m_editor->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    m_editor->process().signal(SIGSTOP);
    const bool isPosted = QCoro::waitFor(m_poster->post(EventPoster::Command::Copy, [] { return true; }));
    m_editor->process().signal(SIGCONT);
    QVERIFY(!isPosted);
    // It answers again, and has done by then whatever it was told before.
    QCOMPARE(m_editor->text(), m_lines.join(u'\n') + u'\n');
    QCOMPARE(m_desktop->display().readSelection("CLIPBOARD", 1s), m_lines.at(1));
}

DESKTOP_TEST_MAIN(TestEventPoster)
#include "tst_eventposter.moc"
