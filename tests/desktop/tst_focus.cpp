// SPDX-License-Identifier: MIT
#include "desktop/vesktest.h"
#include "virtualdesktop/texteditor.h"

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// What has the focus, and where Vesk's windows are, under the selected window manager.
class TestFocus : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void quickNoteTakesEveryLetter();
    void windowsStandWhole();
    void pasteGoesToTheWindowInUse();
    void panelGoesWithItsWorkspace();

private:
    [[nodiscard]] std::unique_ptr<TextEditor> openEditor(const QString &name);
    /// Focuses the window as its user does; returns whether it has the focus.
    [[nodiscard]] bool turnTo(const Window &window);
    /// Writes a quick note on top of the window in use.
    [[nodiscard]] bool writeQuickNote(const QString &text);
    /// Switches to the second workspace, which is empty.
    [[nodiscard]] bool goToEmptyWorkspace();
    /// Waits until `isThere` accepts the window's position; returns whether it did.
    [[nodiscard]] bool waitPlace(const QString &title, const std::function<bool(QRect)> &isThere);
    [[nodiscard]] QString whereIs(const QString &title) const;
};

void TestFocus::init()
{
    VeskTest::init();
    QVERIFY(m_desktop && startVesk());
}

void TestFocus::cleanup()
{
    VeskTest::cleanup();
}

std::unique_ptr<TextEditor> TestFocus::openEditor(const QString &name)
{
    std::unique_ptr<TextEditor> editor = TextEditor::open(*m_desktop, {u"line of "_s + name}, name);
    // An editor that has just started drops the first keys.
    return editor && editor->text() && editor->deselect() ? std::move(editor) : nullptr;
}

bool TestFocus::turnTo(const Window &window)
{
    m_desktop->windows().activate(window);
    return m_desktop->windows().waitActive(window, kBound)
           && m_desktop->windows().waitFocused(window, kBound);
}

bool TestFocus::writeQuickNote(const QString &text)
{
    capture();
    // Starts when Vesk has received the key, long before the box is there.
    const bool isHeard = m_desktop->display().waitUntil(kBound, [this] {
        return m_desktop->pointer().isTaken() || m_desktop->windows().findViewable(kQuickNote);
    });
    m_desktop->keyboard().type(text);
    m_desktop->keyboard().tap({XK_Return}, kFinger);
    return isHeard && waitNotice(kSaved) && m_desktop->windows().waitGone(kQuickNote, kBound);
}

bool TestFocus::goToEmptyWorkspace()
{
    // i3 creates a workspace when the user switches to it.
    if (WindowManager::chosen()->name == "i3"_L1 && !runToEnd(u"i3-msg"_s, {u"workspace"_s, u"2"_s}))
        return false;
    return m_desktop->windows().goToWorkspace(1, kBound);
}

bool TestFocus::waitPlace(const QString &title, const std::function<bool(QRect)> &isThere)
{
    return m_desktop->display().waitUntil(kBound, [&] {
        const std::optional<Window> window = m_desktop->windows().findViewable(title);
        return window && isThere(window->geometry);
    });
}

QString TestFocus::whereIs(const QString &title) const
{
    const std::optional<Window> window = m_desktop->windows().findViewable(title);
    QString place;
    QDebug(&place) << title << (window ? window->geometry : QRect()) << "of"
                   << m_desktop->windows().workArea();
    return place;
}

/// The letters arrive before the box is there.
void TestFocus::quickNoteTakesEveryLetter()
{
    const std::unique_ptr<TextEditor> editor = openEditor(u"first.txt"_s);
    VERIFY_ON(*m_desktop, editor);
    constexpr int kRounds = 4;
    QStringList notes;
    for (int round = 0; round < kRounds; ++round) {
        VERIFY_ON(*m_desktop, editor->deselect());
        notes.append(u"quick note %1"_s.arg(round));
        VERIFY_ON(*m_desktop, writeQuickNote(notes.last()));
        VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(editor->window(), kBound));
        QCOMPARE(m_desktop->notes().texts(), notes);
        QCOMPARE(editor->text(), u"line of first.txt\n"_s);
        QTest::qWait(int(kCaptureGate.count()));
    }
}

void TestFocus::windowsStandWhole()
{
    const std::unique_ptr<TextEditor> editor = openEditor(u"first.txt"_s);
    VERIFY_ON(*m_desktop, editor);
    const QRect area = m_desktop->windows().workArea();
    for (int round = 0; round < 2; ++round) {
        togglePanel();
        const QPoint corner = area.bottomRight() - QPoint(10, 10);
        QVERIFY2(waitPlace(kPanel, [&](QRect place) { return place.bottomRight() == corner; }),
                 qPrintable(whereIs(kPanel)));
        togglePanel();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    }
    capture();
    const QPoint place(area.center().x() - 289, area.y() + qRound(0.26 * area.height()));
    QVERIFY2(waitPlace(kQuickNote, [&](QRect box) { return (box.topLeft() - place).manhattanLength() <= 2; }),
             qPrintable(whereIs(kQuickNote)));
}

/// An earlier quick note over another program does not matter.
void TestFocus::pasteGoesToTheWindowInUse()
{
    const std::unique_ptr<TextEditor> first = openEditor(u"first.txt"_s);
    VERIFY_ON(*m_desktop, first);
    const std::unique_ptr<ChildProcess> terminal = m_desktop->run(u"xterm"_s, {u"-title"_s, u"Terminal"_s});
    const std::optional<Window> console = m_desktop->windows().waitViewable(u"Terminal"_s, kBound);
    VERIFY_ON(*m_desktop, console);
    const std::unique_ptr<TextEditor> second = openEditor(u"second.txt"_s);
    VERIFY_ON(*m_desktop, second);
    constexpr int kRounds = 4;
    QString expected = u"line of second.txt\n"_s;
    for (int round = 0; round < kRounds; ++round) {
        VERIFY_ON(*m_desktop, turnTo(first->window()));
        VERIFY_ON(*m_desktop, first->deselect());
        VERIFY_ON(*m_desktop, writeQuickNote(QString::number(round)));
        VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(first->window(), kBound));
        VERIFY_ON(*m_desktop, turnTo(*console));
        VERIFY_ON(*m_desktop, turnTo(second->window()));
        VERIFY_ON(*m_desktop, second->deselect());
        togglePanel();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
        m_desktop->keyboard().tap({XK_Down}, kFinger);
        m_desktop->keyboard().tap({XK_Control_L, XK_Return}, kFinger);
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
        VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(second->window(), kBound));
        expected.prepend(QString::number(round));
        QString found;
        const bool isPasted = m_desktop->display().waitUntil(kBound, [&] {
            found = second->shownText();
            return found == expected;
        });
        QVERIFY2(isPasted, qPrintable(found));
        VERIFY_ON(*m_desktop, second->deselect());
        QTest::qWait(int(kCaptureGate.count()));
    }
    VERIFY_ON(*m_desktop, turnTo(first->window()));
    QCOMPARE(first->text(), u"line of first.txt\n"_s);
}

void TestFocus::panelGoesWithItsWorkspace()
{
    const std::unique_ptr<TextEditor> editor = openEditor(u"first.txt"_s);
    VERIFY_ON(*m_desktop, editor);
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    VERIFY_ON(*m_desktop, goToEmptyWorkspace());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    // It opens where the user is, and closes without taking the user elsewhere.
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    QCOMPARE(m_desktop->windows().rootNumber("_NET_CURRENT_DESKTOP"), 1U);
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    QTest::qWait(500);
    QCOMPARE(m_desktop->windows().rootNumber("_NET_CURRENT_DESKTOP"), 1U);
}

DESKTOP_TEST_MAIN(TestFocus)
#include "tst_focus.moc"
