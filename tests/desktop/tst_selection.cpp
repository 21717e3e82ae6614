// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// What counts as selected, in an application that tells both the X server and the accessibility bus.
class TestSelection : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void selectionOutlivesATurnToAnotherWindow();
    void withoutConsentNothingIsRead();

private:
    [[nodiscard]] bool setConsent(const QString &action)
    {
        return runToEnd(VirtualDesktop::veskProgram(), {u"access"_s, action});
    }
};

/// The X server's selection is older than the turn to the window, so only the bus can vouch for it.
void TestSelection::selectionOutlivesATurnToAnotherWindow()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(1)});
}

void TestSelection::withoutConsentNothingIsRead()
{
    QVERIFY(setConsent(u"deny"_s));
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    const QString question = u"Vesk: Let Vesk read what you select?"_s;
    const auto window = m_desktop->windows().waitFocused(question, kBound);
    VERIFY_ON(*m_desktop, window);
    QVERIFY(m_desktop->notes().texts().isEmpty());

    // A key meant for the document must not agree to anything. The box, which came with the question, may
    // have the keyboard for another moment and the key with it.
    const auto isAnswered = [&] {
        m_desktop->keyboard().tap({XK_Return});
        return m_desktop->windows().waitGone(question, 500ms);
    };
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, isAnswered));
    QVERIFY(!setConsent(u"status"_s));

    QVERIFY(setConsent(u"allow"_s));
    m_desktop->windows().activate(m_editor->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    QTest::qWait(int(kCaptureGate.count()));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(0)});
}

int main(int argc, char **argv)
{
    return runDesktopTest<TestSelection>(argc, argv);
}

#include "tst_selection.moc"
