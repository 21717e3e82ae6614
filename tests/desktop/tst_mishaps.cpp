// SPDX-License-Identifier: MIT
#include "desktop/texteditor.h"
#include "desktop/vesktest.h"

#include <csignal>

using namespace Qt::StringLiterals;
using namespace vesk;

/// What Vesk keeps of its word when it is killed or cut off, and when a key is up sooner than it is heard.
class TestMishaps : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void killedAtTheNoticeLosesNothing();
    void endedWhileTypingLosesNothing_data();
    void endedWhileTypingLosesNothing();
    void keyUpBeforeItsPressIsHeardFiresAgain();

private:
    [[nodiscard]] static int rounds();

    /// Copies all of the text that has the keyboard, until it is this one.
    [[nodiscard]] bool copyUntil(const QString &text);

    QStringList m_lines;
    std::unique_ptr<TextEditor> m_editor;
};

/// VESK_KILL_ROUNDS asks for a longer run than the usual one.
int TestMishaps::rounds()
{
    constexpr int kUsual = 5;
    const int asked = qEnvironmentVariableIntValue("VESK_KILL_ROUNDS");
    return asked > 0 ? asked : kUsual;
}

void TestMishaps::init()
{
    m_lines.clear();
    for (int round = 0; round < rounds(); ++round)
        m_lines.append(u"Line %1 of a list that must be whole"_s.arg(round));
    VeskTest::init();
    QVERIFY(m_desktop);
    m_editor = TextEditor::open(*m_desktop, m_lines);
    VERIFY_ON(*m_desktop, m_editor);
}

void TestMishaps::cleanup()
{
    m_editor.reset();
    VeskTest::cleanup();
}

bool TestMishaps::copyUntil(const QString &text)
{
    return m_desktop->display().waitUntil(kBound, [&] {
        m_desktop->keyboard().tap({XK_Control_L, XK_a});
        m_desktop->keyboard().tap({XK_Control_L, XK_c});
        return m_desktop->display().readSelection("CLIPBOARD", kFinger) == text;
    });
}

void TestMishaps::killedAtTheNoticeLosesNothing()
{
    for (int round = 0; round < rounds(); ++round) {
        m_vesk = m_desktop->startVesk();
        QVERIFY(m_vesk);
        VERIFY_ON(*m_desktop, m_editor->selectLine(round));
        capture();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
        m_vesk->kill();
        QCOMPARE(m_desktop->notes().texts(), m_lines.mid(0, round + 1));
    }
    QCOMPARE(m_desktop->notes().integrity(), u"ok"_s);

    // And the next Vesk takes the file as it is.
    QVERIFY(startVesk());
    QCOMPARE(m_desktop->notes().texts(), m_lines);
}

void TestMishaps::endedWhileTypingLosesNothing_data()
{
    QTest::addColumn<bool>("losesItsDisplay");
    QTest::newRow("told to quit") << false;
    QTest::newRow("cut off from the display") << true;
}

/// Far sooner than what is typed into a note is saved by itself.
void TestMishaps::endedWhileTypingLosesNothing()
{
    QFETCH(bool, losesItsDisplay);
    QVERIFY(startVesk());
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    togglePanel();
    const auto panel = m_desktop->windows().waitFocused(kPanel, kBound);
    VERIFY_ON(*m_desktop, panel);
    Keyboard &keyboard = m_desktop->keyboard();
    keyboard.tap({XK_Down}, kFinger);
    keyboard.tap({XK_Return}, kFinger);
    const QString typed = m_lines.at(0) + u" more"_s;
    // The editor takes the keyboard once it is there.
    VERIFY_ON(*m_desktop, copyUntil(m_lines.at(0)));
    keyboard.tap({XK_End}, kFinger);
    keyboard.type(u" more"_s);
    VERIFY_ON(*m_desktop, copyUntil(typed));
    if (losesItsDisplay) {
        xcb_kill_client(m_desktop->display().xcb(), panel->id);
        xcb_flush(m_desktop->display().xcb());
    } else {
        m_vesk->signal(SIGTERM);
    }
    QVERIFY(m_vesk->waitForExit(kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{typed});
}

/// A macro keyboard has the key up again before Vesk hears that it went down.
void TestMishaps::keyUpBeforeItsPressIsHeardFiresAgain()
{
    QVERIFY(startVesk());
    const auto togglePanel = [this] { m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}); };
    for (int round = 0; round < 2; ++round) {
        togglePanel();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
        togglePanel();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    }
}

int main(int argc, char **argv)
{
    return runDesktopTest<TestMishaps>(argc, argv);
}

#include "tst_mishaps.moc"
