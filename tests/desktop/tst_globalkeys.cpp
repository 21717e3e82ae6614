// SPDX-License-Identifier: MIT
#include "desktop/editortest.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

namespace {

const auto kSavedPrompt = u"Saved to Prompts"_s;

} // namespace

/// Every global key, in whatever state and layout the keyboard is.
class TestGlobalKeys : public EditorTest
{
    Q_OBJECT

private Q_SLOTS:
    void eachKeyDoesItsOwn_data();
    void eachKeyDoesItsOwn();
    void layouts_data();
    void layouts();
    void takenCombinationIsReportedAndReclaimed();
    void usersOwnCombinationWorks();
    void letterHeldLongerThanItsModifiersTypesNothing();
    void secondPressMeanwhileIsIgnored_data();
    void secondPressMeanwhileIsIgnored();
    void cardThatIsEditedLosesNothing();
    void whatIsTypedFromThePressOnReachesThePanel();

private:
    /// The line of `vesk keys` that starts with these keys; empty if there is none.
    [[nodiscard]] QString lineOfKeys(const QString &keys);
};

QString TestGlobalKeys::lineOfKeys(const QString &keys)
{
    const auto process = m_desktop->run(VirtualDesktop::veskProgram(), {u"keys"_s});
    if (!process || !process->waitForExit(kBound))
        return {};
    const QStringList lines = process->output().split(u'\n');
    const auto line =
        std::ranges::find_if(lines, [&keys](const QString &each) { return each.startsWith(keys + u' '); });
    return line == lines.end() ? QString() : *line;
}

void TestGlobalKeys::eachKeyDoesItsOwn_data()
{
    QTest::addColumn<bool>("followsPointer");
    QTest::newRow("focus by clicks") << false;
    QTest::newRow("focus follows the pointer") << true;
}

void TestGlobalKeys::eachKeyDoesItsOwn()
{
    QFETCH(const bool, followsPointer);
    if (followsPointer)
        VERIFY_ON(*m_desktop, letFocusFollowThePointer());
    const auto waitForGate = [] { QTest::qWait(int(kCaptureGate.count())); };
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    press({XK_n});
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    tapShiftTwice();
    VERIFY_ON(*m_desktop, waitNotice(kSavedPrompt));
    QCOMPARE(m_desktop->notes().promptTexts(), QStringList{m_lines.at(0)});

    waitForGate();
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    press({XK_Shift_L, XK_n});
    VERIFY_ON(*m_desktop, waitNotice(u"Added to “%1”"_s.arg(m_lines.at(0))));
    const QString note = m_lines.join(u"\n\n"_s);
    QCOMPARE(m_desktop->notes().texts(), QStringList{note});

    waitForGate();
    press({XK_c});
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    const QString box = u"☐ "_s + m_lines.at(1);
    QCOMPARE(m_desktop->notes().texts(), (QStringList{note, box}));

    waitForGate();
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    press({XK_Shift_L, XK_c});
    VERIFY_ON(*m_desktop, waitNotice(u"Added to “%1”"_s.arg(m_lines.at(1))));
    QCOMPARE(m_desktop->notes().texts(), (QStringList{note, box + u"\n☐ "_s + m_lines.at(0)}));

    Windows &windows = m_desktop->windows();
    togglePanel();
    VERIFY_ON(*m_desktop, windows.waitFocused(kPanel, kBound));
    togglePanel();
    VERIFY_ON(*m_desktop, windows.waitGone(kPanel, kBound));
    VERIFY_ON(*m_desktop, windows.waitActive(m_editor->window(), kBound));
    QVERIFY(isEditorUntouched());
}

void TestGlobalKeys::layouts_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("typedByN");
    QTest::newRow("second of two") << QStringList{u"us,ru"_s, u"-option"_s, u"grp:sclk_toggle"_s} << u"т"_s;
    // All letters are on other keys in this layout.
    QTest::newRow("Dvorak") << QStringList{u"us"_s, u"-variant"_s, u"dvorak"_s} << u"b"_s;
}

/// The layout changes while Vesk is running; the keys stay where they were.
void TestGlobalKeys::layouts()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, typedByN);
    QVERIFY(runToEnd(u"setxkbmap"_s, QStringList{u"-layout"_s} + arguments));
    // Does nothing if it does not switch to the second layout.
    m_desktop->keyboard().tap({XK_Scroll_Lock}, kFinger);
    const QString typed = typedByN + m_lines.join(u'\n') + u'\n';
    VERIFY_ON(*m_desktop, m_editor->deselect());
    m_desktop->keyboard().tap({XK_n}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(u'*' + m_editor->window().title, kBound));
    QCOMPARE(m_editor->text(), typed);

    m_desktop->keyboard().tap({XK_Control_L, XK_Home}, kFinger);
    m_desktop->keyboard().tap({XK_Delete}, kFinger);
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    capture();
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    tapShiftTwice();
    VERIFY_ON(*m_desktop, waitNotice(kSavedPrompt));
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    QTest::qWait(int(kCaptureGate.count()));
    press({XK_c});
    const QStringList expected{m_lines.at(1), u"☐ "_s + m_lines.at(1)};
    VERIFY_ON(*m_desktop, waitNotes(expected));
}

/// Another program grabs the combination first, and releases it later.
void TestGlobalKeys::takenCombinationIsReportedAndReclaimed()
{
    QVERIFY(m_vesk->quit());
    std::unique_ptr<DisplayConnection> other = DisplayConnection::open(m_desktop->displayName());
    QVERIFY(other);
    Keyboard(*other).takeHotKey(XK_n);
    m_vesk = m_desktop->startVesk();
    QVERIFY(m_vesk);
    const QString taken = lineOfKeys(u"Super+Alt+N"_s);
    QVERIFY2(taken.contains("taken by"_L1) && taken.contains("tst_globalkeys"_L1), qPrintable(taken));
    const QString free = lineOfKeys(u"Super+Alt+Shift+N"_s);
    QVERIFY2(free.contains("works"_L1), qPrintable(free));
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    press({XK_n});
    press({XK_Shift_L, XK_n});
    // If Vesk had the taken key, this press would come too soon.
    VERIFY_ON(*m_desktop, waitNotes({m_lines.at(1)}));

    other.reset();
    const auto isFree = [this] { return lineOfKeys(u"Super+Alt+N"_s).contains("works"_L1); };
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, isFree));
    QTest::qWait(int(kCaptureGate.count()));
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    press({XK_n});
    VERIFY_ON(*m_desktop, waitNotes({m_lines.at(1), m_lines.at(0)}));
}

void TestGlobalKeys::usersOwnCombinationWorks()
{
    static_cast<void>(
        m_desktop->writeFile(u"config/Vesk/Keys.conf"_s, u"capture = Super+Alt+B\nwrite = Hyper+W\n"_s));
    const auto isRead = [this] { return lineOfKeys(u"Super+Alt+B"_s).contains("works"_L1); };
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, isRead));
    QVERIFY2(m_vesk->errorOutput().contains("vesk: Keys.conf, line 2"_L1), qPrintable(m_vesk->errorOutput()));
    QVERIFY2(!m_desktop->keyboard().isHotKeyTaken(XK_n), "The default is claimed beside the user's choice.");
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    press({XK_b});
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(0)});
}

void TestGlobalKeys::letterHeldLongerThanItsModifiersTypesNothing()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    Keyboard &keyboard = m_desktop->keyboard();
    for (const xcb_keysym_t key : {XK_Super_L, XK_Alt_L, XK_n})
        keyboard.press(key);
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    // Held longer than the gate: if repeats counted as presses, they would capture the same text again.
    VERIFY_ON(*m_desktop, !m_desktop->windows().waitViewable(kAlready, kCaptureGate + 400ms));
    keyboard.release(XK_Super_L);
    keyboard.release(XK_Alt_L);
    QTest::qWait(1500); // The server begins to repeat 660 ms after the press.
    keyboard.release(XK_n);
    QTest::qWait(int(kFinger.count()));
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(0)});
    QVERIFY(isEditorUntouched());

    // The editor gets the letter again.
    keyboard.tap({XK_Control_L, XK_Home}, kFinger);
    keyboard.tap({XK_n}, kFinger);
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(u'*' + m_editor->window().title, kBound));
    QCOMPARE(m_editor->text(), u'n' + m_lines.join(u'\n') + u'\n');
}

void TestGlobalKeys::secondPressMeanwhileIsIgnored_data()
{
    QTest::addColumn<QList<Keys>>("taps");
    QTest::addColumn<bool>("hasPanel");
    const auto with = [](const Keys &keys) { return Keys{XK_Super_L, XK_Alt_L} + keys; };
    QTest::newRow("note and checklist") << QList<Keys>{with({XK_n, XK_c})} << false;
    QTest::newRow("note twice") << QList<Keys>{with({XK_n}), with({XK_n})} << false;
    QTest::newRow("note and panel") << QList<Keys>{with({XK_n, XK_t})} << true;
}

/// A second capture right after the first is ignored, but still kept from the editor.
void TestGlobalKeys::secondPressMeanwhileIsIgnored()
{
    QFETCH(const QList<Keys>, taps);
    QFETCH(const bool, hasPanel);
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    for (const Keys &keys : taps)
        m_desktop->keyboard().tap(keys);
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kSaved, kBound));
    QCOMPARE(m_desktop->notes().texts(), QStringList{m_lines.at(0)});
    VERIFY_ON(*m_desktop, m_desktop->windows().findViewable(kPanel).has_value() == hasPanel);
    VERIFY_ON(*m_desktop, !m_desktop->windows().findViewable(kQuickNote));
    if (hasPanel)
        togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    QVERIFY(isEditorUntouched());
}

/// A selection in Vesk itself is kept like any other, even in the very note that it comes from.
void TestGlobalKeys::cardThatIsEditedLosesNothing()
{
    VERIFY_ON(*m_desktop, m_editor->selectLine(0));
    capture();
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    Keyboard &keyboard = m_desktop->keyboard();
    const auto tap = [&keyboard](const Keys &keys) { keyboard.tap(keys, kFinger); };
    const auto copied = [&] {
        tap({XK_Control_L, XK_c});
        return m_desktop->display().readSelection("CLIPBOARD", 500ms);
    };
    tap({XK_Down});
    tap({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        tap({XK_Control_L, XK_a});
        return copied() == m_lines.at(0);
    }));
    tap({XK_End});
    keyboard.type(u" more"_s);
    tap({XK_Control_L, XK_Shift_L, XK_Left});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] { return copied() == u"more"_s; }));
    QTest::qWait(int(kCaptureGate.count()));
    capture();
    QString note = m_lines.at(0) + u" more"_s;
    VERIFY_ON(*m_desktop, waitNotes({note, u"more"_s}));

    QTest::qWait(int(kCaptureGate.count()));
    tap({XK_End});
    keyboard.type(u" yet"_s);
    tap({XK_Control_L, XK_Shift_L, XK_Left});
    press({XK_Shift_L, XK_n});
    note += u" yet\n\nyet"_s;
    VERIFY_ON(*m_desktop, waitNotes({note, u"more"_s}));
    tap({XK_Control_L, XK_a});
    QCOMPARE(copied(), note);
}

/// The first letters arrive before the panel is on the screen.
void TestGlobalKeys::whatIsTypedFromThePressOnReachesThePanel()
{
    constexpr auto kFastTyping = 33ms;
    const QString words = u"lemon tree on the balcony"_s;
    const auto typeFast = [&] {
        for (const QChar letter : words) {
            QTest::qWait(int(kFastTyping.count()));
            m_desktop->keyboard().type(letter);
        }
    };
    // Without a note there is no search.
    VERIFY_ON(*m_desktop, m_editor->selectLine(1));
    capture();
    VERIFY_ON(*m_desktop, waitNotice(kSaved));
    constexpr int kRounds = 5;
    for (int round = 0; round < kRounds; ++round) {
        togglePanel();
        typeFast();
        m_desktop->keyboard().tap({XK_Control_L, XK_a});
        m_desktop->keyboard().tap({XK_Control_L, XK_x});
        VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
            return m_desktop->display().readSelection("CLIPBOARD", 1s) == words;
        }));
        togglePanel();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
        VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    }
    press({XK_Control_L, XK_n});
    typeFast();
    m_desktop->keyboard().tap({XK_Return});
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(
                              kBound, [&] { return m_desktop->notes().texts().value(1) == words; }));
    togglePanel();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(m_editor->window(), kBound));
    // FIXME: Control-A and Control-C do not always reach the editor here, so its text is read from the bus.
    QCOMPARE(m_editor->shownText(), m_lines.join(u'\n') + u'\n');
}

DESKTOP_TEST_MAIN(TestGlobalKeys)
#include "tst_globalkeys.moc"
