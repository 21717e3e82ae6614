// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"
#include "desktop/foreignwindow.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// What counts as selected in an application that informs both the X server and the accessibility bus, and
/// reading a text through the clipboard.
class TestSelection : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void primaryOfAForeignApplicationIsConfirmedByACopy_data();
    void primaryOfAForeignApplicationIsConfirmedByACopy();
    void selectionOutlivesATurnToAnotherWindow();
    void withoutConsentNothingIsRead();
    void noteIsPastedIntoTheEditor();
    void terminalSurvivesAndTheRecentCopyIsKept();

private:
    [[nodiscard]] bool setConsent(const QString &action)
    {
        return runToEnd(VirtualDesktop::veskProgram(), {u"access"_s, action});
    }
    [[nodiscard]] std::optional<QString> clipboard()
    {
        return m_desktop->display().readSelection("CLIPBOARD", 1s);
    }
};

void TestSelection::primaryOfAForeignApplicationIsConfirmedByACopy_data()
{
    using Text = std::optional<QByteArray>;
    const Text none;
    QTest::addColumn<Text>("offered");
    QTest::addColumn<Text>("copied");
    QTest::addColumn<QStringList>("notes");
    QTest::newRow("password field") << Text("open sesame") << none << QStringList();
    QTest::newRow("text") << Text("words") << Text("words") << QStringList(u"words"_s);
    QTest::newRow("whole line") << Text("line\n") << Text("line\n") << QStringList(u"line"_s);
    QTest::newRow("caret's line") << none << Text("line\n") << QStringList();
}

/// It is not on the accessibility bus, like a Chromium that was started before Vesk.
void TestSelection::primaryOfAForeignApplicationIsConfirmedByACopy()
{
    QFETCH(const std::optional<QByteArray>, offered);
    QFETCH(const std::optional<QByteArray>, copied);
    QFETCH(const QStringList, notes);
    const ForeignWindow foreign(m_desktop->displayName(), copied);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(foreign.window(), kBound));
    m_desktop->keyboard().tap({XK_x}, kFinger);
    QTest::qWait(100); // A claim at the very moment of the key counts as made by it.
    std::unique_ptr<ClipboardHolder> primary;
    if (offered)
        primary = ClipboardHolder::hold(m_desktop->displayName(), {{"UTF8_STRING", *offered}}, "PRIMARY");
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(notes.isEmpty() ? kQuickNote : kSaved, kBound));
    QCOMPARE(foreign.copyCount(), 1);
    QCOMPARE(m_desktop->notes().texts(), notes);
}

/// The X server's selection is older than the switch to the window, so only the bus can confirm it.
void TestSelection::selectionOutlivesATurnToAnotherWindow()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    m_desktop->keyboard().tap({XK_Escape});
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    QVERIFY(!m_desktop->windows().findViewable(kPanel));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(1)});
}

void TestSelection::withoutConsentNothingIsRead()
{
    QVERIFY(setConsent(u"deny"_s));
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    tapShiftTwice();
    capture();
    // The question waits until the box that the key opened is closed.
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
    const QString question = u"Vesk: Let Vesk read what you select?"_s;
    QVERIFY(!m_desktop->windows().findViewable(question));
    m_desktop->keyboard().tap({XK_Escape}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(question, kBound));
    QVERIFY(m_desktop->notes().texts().isEmpty());

    // A key meant for the document must not agree to anything.
    m_desktop->keyboard().tap({XK_Return}, kFinger);
    const auto isClosed = [&] {
        m_desktop->keyboard().tap({XK_Escape}, kFinger);
        return m_desktop->windows().waitGone(question, 1s);
    };
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, isClosed));
    QVERIFY(!setConsent(u"status"_s));

    QVERIFY(setConsent(u"allow"_s));
    m_desktop->windows().activate(m_editor->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    QTest::qWait(int(kCaptureGate.count()));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(0)});
    QVERIFY(m_desktop->notes().promptTexts().isEmpty());
    tapShiftTwice();
    VERIFY_ON(*m_desktop, waitNotice(u"Saved to Prompts"_s));
    QCOMPARE(m_desktop->notes().promptTexts(), QStringList{m_lines.at(0)});
}

void TestSelection::noteIsPastedIntoTheEditor()
{
    QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"add"_s, m_lines.at(1)}));
    m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, kFinger);
    const std::optional<Window> panel = m_desktop->windows().waitViewable(kPanel, kBound);
    VERIFY_ON(*m_desktop, panel);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel, kBound));
    m_desktop->keyboard().tap({XK_Down}, kFinger);
    m_desktop->keyboard().tap({XK_Control_L, XK_Return}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));

    // The editor marks a changed document in its title; reading it earlier would disturb it.
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(u'*' + m_editor->window().title, kBound));
    // Once, at the start of the document, where the caret was.
    QCOMPARE(m_editor->text(), m_lines.at(1) + m_lines.join(u'\n') + u'\n');
    QCOMPARE(clipboard(), m_lines.at(1));

    // Vesk owns the clipboard now, and pastes it into its own field without waiting for itself.
    m_desktop->keyboard().tap({XK_Control_L, XK_Super_L, XK_Alt_L, XK_n}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel, kBound));
    m_desktop->keyboard().tap({XK_Control_L, XK_v}, kFinger);
    QTest::qWait(100); // The text arrives a moment after the key.
    m_desktop->keyboard().type(u" tomorrow"_s);
    m_desktop->keyboard().tap({XK_Return}, kFinger);
    const QStringList expected{m_lines.at(1), m_lines.at(1) + u" tomorrow"_s};
    constexpr std::chrono::seconds kAtOnce{2};
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(
                              kAtOnce, [&] { return m_desktop->notes().texts() == expected; }));
}

/// Nothing is selected in the terminal, which treats Copy as an interrupt.
void TestSelection::terminalSurvivesAndTheRecentCopyIsKept()
{
    const std::unique_ptr<ChildProcess> terminal =
        m_desktop->run(u"xterm"_s, {u"-e"_s, u"sleep"_s, u"100"_s});
    QVERIFY(terminal);
    const std::optional<Window> window = m_desktop->windows().waitViewableOf(terminal->pid(), {}, kBound);
    VERIFY_ON(*m_desktop, window);
    // A terminal that takes the focus later takes it from the box, which then closes.
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*window, kBound));
    capture();
    const std::optional<Window> box = m_desktop->windows().waitViewable(kQuickNote, kBound);
    VERIFY_ON(*m_desktop, box);
    // Only then does the editor, which is activated next, keep the focus.
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(*box, kBound));
    QVERIFY(terminal->isRunning());
    QVERIFY(m_desktop->notes().texts().isEmpty());

    m_desktop->windows().activate(m_editor->window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    m_desktop->keyboard().tap({XK_Control_L, XK_c}, kFinger);
    VERIFY_ON(*m_desktop,
              m_desktop->display().waitUntil(kBound, [this] { return clipboard() == m_lines.at(0); }));
    QTest::qWait(int(kCaptureGate.count()));
    m_desktop->windows().activate(*window);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(*window, kBound));
    capture();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(0)});
    QVERIFY(terminal->isRunning());
    QCOMPARE(clipboard(), m_lines.at(0));
}

DESKTOP_TEST_MAIN(TestSelection)
#include "tst_selection.moc"
