// SPDX-License-Identifier: MIT
#include "desktop/desktoptest.h"

#include <csignal>

using namespace Qt::StringLiterals;
using namespace vesk;

/// What Vesk keeps of its word when it is killed and when the application in front hangs.
class TestMishaps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void killedAtTheNoticeLosesNothing();
    void hungApplicationDoesNotHangVesk();
    void keyUpBeforeItsPressIsHeardFiresAgain();

private:
    [[nodiscard]] static int rounds();
    void capture() { m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_n}, kFinger); }
    void togglePanel(std::chrono::milliseconds hold)
    {
        m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, hold);
    }

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
