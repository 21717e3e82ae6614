// SPDX-License-Identifier: MIT
#include "desktop/desktoptest.h"

#include <csignal>

using namespace Qt::StringLiterals;
using namespace vesk;

/// What Vesk keeps of its word when it is killed or cut off and when the application in front hangs.
class TestMishaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void killedAtTheNoticeLosesNothing();
    void endedWhileTypingLosesNothing_data();
    void endedWhileTypingLosesNothing();
    void hungApplicationDoesNotHangVesk();
    void keyUpBeforeItsPressIsHeardFiresAgain();

private:
    [[nodiscard]] static int rounds();
    void capture() { m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_n}, kFinger); }
    void togglePanel(std::chrono::milliseconds hold)
    {
        m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, hold);
    }

    /// Copies all of the text that has the keyboard, until it is this one.
    [[nodiscard]] bool copyUntil(const QString &text);

    QStringList m_lines;
    std::unique_ptr<VirtualDesktop> m_desktop;
    std::unique_ptr<ChildProcess> m_vesk;
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
    QString problem;
    m_desktop = VirtualDesktop::start(problem);
    QVERIFY2(m_desktop, qPrintable(problem));
    QVERIFY(m_desktop->prepareUser());
    m_editor = TextEditor::open(*m_desktop, m_lines);
    VERIFY_ON(*m_desktop, m_editor);
}

void TestMishaps::cleanup()
{
    if (m_vesk && QTest::currentTestFailed())
        qWarning().noquote() << "Vesk said:" << m_vesk->errorOutput();
    m_editor.reset();
    m_vesk.reset();
    m_desktop.reset();
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
    m_vesk = m_desktop->startVesk();
    QVERIFY(m_vesk);
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
    m_vesk = m_desktop->startVesk();
    QVERIFY(m_vesk);
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    togglePanel(kFinger);
    const std::optional<Window> panel = m_desktop->windows().waitViewable(kPanel, kBound);
    VERIFY_ON(*m_desktop, panel);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel, kBound));
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

void TestMishaps::hungApplicationDoesNotHangVesk()
{
    m_vesk = m_desktop->startVesk();
    QVERIFY(m_vesk);
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    m_editor->process().signal(SIGSTOP);
    capture();
    // Nothing can be read, so the box comes up to write a note; far below the 15 s that a toolkit waits
    // for a hung owner of the selection.
    constexpr std::chrono::seconds kAnswer{2};
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kQuickNote, kAnswer));
    // It hangs on until Vesk has given up every way to the text.
    QTest::qWait(1500);
    m_editor->process().signal(SIGCONT);

    // The note may be missing; another text than the selected one may not be there.
    const QStringList texts = m_desktop->notes().texts();
    QVERIFY2(texts.isEmpty() || texts == QStringList{m_lines.at(0)}, qPrintable(texts.join(u'\n')));
    m_desktop->windows().activate(m_editor->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kQuickNote, kBound));
    QCOMPARE(m_editor->text(), m_lines.join(u'\n') + u'\n');
}

/// A macro keyboard has the key up again before Vesk hears that it went down.
void TestMishaps::keyUpBeforeItsPressIsHeardFiresAgain()
{
    m_vesk = m_desktop->startVesk();
    QVERIFY(m_vesk);
    for (int round = 0; round < 2; ++round) {
        togglePanel({});
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
        togglePanel({});
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    }
}

int main(int argc, char **argv)
{
    return runDesktopTest<TestMishaps>(argc, argv);
}

#include "tst_mishaps.moc"
