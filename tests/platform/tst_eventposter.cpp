// SPDX-License-Identifier: MIT
#include "x11test.h"

#include "desktop/plainwindow.h"
#include "platform/freedesktop/systemclock.h"
#include "platform/memory/memoryaccessibility.h"
#include "platform/x11/keytaker.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11eventposter.h"
#include "platform/x11/x11workspace.h"
#include "virtualdesktop/texteditor.h"

#include <QCoroTask>

#include <QEventLoop>
#include <QTimer>

#include <csignal>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Sends keys to real applications, which must get exactly those keys, and some none at all.
class TestEventPoster : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void applicationsAreClassified_data();
    void applicationsAreClassified();
    void heldLetterIsWaitedFor();
    void letterThatStaysDownIsGivenUp();
    void otherWindowGetsNoKeys();
    void terminalInsideAWindowGetsNoCopy();
    void hungApplicationIsNotAskedToCopyLater();

private:
    /// Begins to send Copy to the editor; the result arrives in `m_isPosted`.
    void postCopy();
    [[nodiscard]] std::optional<QString> clipboard()
    {
        return m_desktop->display().readSelection("CLIPBOARD", 1s);
    }

    std::unique_ptr<TextEditor> m_editor;
    std::unique_ptr<RawInput> m_input;
    std::unique_ptr<X11Workspace> m_workspace;
    SystemClock m_clock;
    MemoryAccessibility m_accessibility{m_clock};
    std::unique_ptr<X11EventPoster> m_poster;
    std::optional<bool> m_isPosted;
    const QStringList m_lines = {u"Water the lemon tree"_s, u"Ask about the train"_s};
};

void TestEventPoster::initTestCase()
{
    X11Test::initTestCase();
    QVERIFY(m_connection);
    m_input = std::make_unique<RawInput>(*m_connection);
    m_workspace = std::make_unique<X11Workspace>(*m_connection);
    m_poster = std::make_unique<X11EventPoster>(X11EventPoster::Needs{.connection = *m_connection,
                                                                      .input = *m_input,
                                                                      .workspace = *m_workspace,
                                                                      .accessibility = m_accessibility,
                                                                      .clock = m_clock});
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

void TestEventPoster::applicationsAreClassified_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("category");
    QTest::addColumn<QString>("role");
    QTest::addColumn<QString>("keys");
    const auto row = [](const char *description, const QString &name, const QString &category,
                        const QString &role, const QString &keys) {
        QTest::newRow(description) << name << category << role << keys;
    };
    // c, v and w: gets Copy, Paste, and Paste unless it is a terminal.
    row("editor", u"Mousepad"_s, u"TextEditor"_s, u"text"_s, u"cvw"_s);
    row("editor that does not answer", u"Mousepad"_s, {}, {}, u"cvw"_s);
    row("terminal by its class", u"Kitty"_s, {}, {}, u"v"_s);
    row("terminal by its application ID", u"org.example.Ghostty"_s, {}, {}, u"v"_s);
    row("terminal without a clipboard", u"XTerm"_s, {}, {}, {});
    row("unknown terminal by its entry", u"Newterm"_s, u"TerminalEmulator"_s, {}, u"v"_s);
    row("terminal in an editor", u"Mousepad"_s, u"TextEditor"_s, u"terminal"_s, u"v"_s);
    row("field of a terminal program", u"Kitty"_s, {}, u"text"_s, u"v"_s);
    row("Emacs", u"Emacs"_s, {}, u"panel"_s, u"v"_s);
    row("password prompt", u"Pinentry"_s, {}, {}, {});
    row("environment that does not answer", u"jetbrains-pycharm-ce"_s, {}, {}, u"v"_s);
    row("unknown environment by its entry", u"Newcode"_s, u"IDE"_s, {}, u"v"_s);
    row("editor of an environment", u"Code"_s, u"IDE"_s, u"entry"_s, u"cvw"_s);
    row("terminal of an environment", u"Code"_s, u"IDE"_s, u"terminal"_s, u"v"_s);
    row("virtual machine", u"VirtualBox Machine"_s, {}, u"text"_s, {});
    row("unknown remote desktop by its entry", u"Newdesk"_s, u"RemoteAccess"_s, {}, {});
    row("unknown emulator by its entry", u"Newbox"_s, u"Emulator"_s, u"text"_s, {});
    row("picture in a page", u"Chromium"_s, u"WebBrowser"_s, u"canvas"_s, u"v"_s);
}

void TestEventPoster::applicationsAreClassified()
{
    QFETCH(const QString, name);
    QFETCH(const QString, category);
    QFETCH(const QString, role);
    DesktopEntry entry;
    entry.categories = QStringList{u"Utility"_s, category};
    WindowIdentity window;
    window.className = name;
    const KeyTaker taker = keyTakerOf(window, &entry, role.isEmpty() ? std::nullopt : std::optional(role));
    QString keys;
    using Command = EventPoster::Command;
    for (const auto &[command, letter] : {std::pair(Command::Copy, u'c'), std::pair(Command::Paste, u'v'),
                                          std::pair(Command::PasteUnlessTerminal, u'w')}) {
        if (!keysFor(command, taker).isEmpty())
            keys.append(letter);
    }
    QTEST(keys, "keys");
}

void TestEventPoster::postCopy()
{
    m_isPosted.reset();
    // The poster uses events that have been handled. A loop that never blocks leaves some of them unread.
    QEventLoop loop;
    QTimer::singleShot(50, &loop, &QEventLoop::quit);
    loop.exec();
    m_poster->post(EventPoster::Command::Copy, m_poster->target(), [] { return true; })
        .then([this](bool isPosted) { m_isPosted = isPosted; });
}

void TestEventPoster::heldLetterIsWaitedFor()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    Keyboard &keyboard = m_desktop->keyboard();
    for (const xcb_keysym_t key : {XK_Super_L, XK_Alt_L, XK_n})
        keyboard.press(key);
    postCopy();
    QTest::qWait(200);
    QVERIFY(!m_isPosted);
    keyboard.release(XK_n); // The modifiers stay down.
    QTRY_VERIFY(m_isPosted);
    QVERIFY(*m_isPosted);
    VERIFY_ON(*m_desktop,
              m_desktop->display().waitUntil(kBound, [this] { return clipboard() == m_lines.at(1); }));
    keyboard.release(XK_Alt_L);
    keyboard.release(XK_Super_L);
    QCOMPARE(m_editor->text(), m_lines.join(u'\n') + u'\n');
}

void TestEventPoster::letterThatStaysDownIsGivenUp()
{
    const QList<xcb_keysym_t> keys{XK_Super_L, XK_Alt_L, XK_n};
    for (const xcb_keysym_t key : keys)
        m_desktop->keyboard().press(key);
    postCopy();
    QTRY_VERIFY(m_isPosted);
    QVERIFY(!*m_isPosted);
    for (const xcb_keysym_t key : keys)
        m_desktop->keyboard().release(key);
}

/// The window changes while the poster waits for the key.
void TestEventPoster::otherWindowGetsNoKeys()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    m_desktop->keyboard().press(XK_F8);
    postCopy();
    PlainWindow other(m_desktop->display(), u"Other"_s, QRect(5, 5, 100, 100));
    other.show();
    m_desktop->windows().activate(other.window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(other.window(), kBound));
    m_desktop->keyboard().release(XK_F8);
    QTRY_VERIFY(m_isPosted);
    QVERIFY(!*m_isPosted);
    m_desktop->windows().activate(m_editor->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(m_editor->window(), kBound));
}

void TestEventPoster::terminalInsideAWindowGetsNoCopy()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    const AccessibleElement focused{.processIdentifier = m_editor->process().pid(), .address = u"element"_s};
    m_accessibility.setFocusedElement(focused);
    for (const QString &role : {u"terminal"_s, u"text"_s}) {
        m_accessibility.setElement(focused, {.role = role, .url = {}, .parent = {}});
        postCopy();
        QTRY_VERIFY(m_isPosted);
        QCOMPARE(*m_isPosted, role == u"text"_s);
    }
    m_accessibility.setFocusedElement(std::nullopt);
    VERIFY_ON(*m_desktop,
              m_desktop->display().waitUntil(kBound, [this] { return clipboard() == m_lines.at(0); }));
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    m_desktop->keyboard().tap({XK_Control_L, XK_c}, kFinger);
    VERIFY_ON(*m_desktop,
              m_desktop->display().waitUntil(kBound, [this] { return clipboard() == m_lines.at(1); }));
}

void TestEventPoster::hungApplicationIsNotAskedToCopyLater()
{
    m_desktop->windows().activate(m_editor->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    m_editor->process().signal(SIGSTOP);
    postCopy();
    QTRY_VERIFY(m_isPosted);
    m_editor->process().signal(SIGCONT);
    QVERIFY(!*m_isPosted);
    // It answers again, and by then has processed everything before that.
    QCOMPARE(m_editor->text(), m_lines.join(u'\n') + u'\n');
    QCOMPARE(clipboard(), m_lines.at(1));
}

DESKTOP_TEST_MAIN(TestEventPoster)
#include "tst_eventposter.moc"
