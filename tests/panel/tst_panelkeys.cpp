// SPDX-License-Identifier: MIT
#include "editor/notetextview.h"
#include "paneltest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Real keys in the panel's real window.
class PanelKeysTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void arrowsStopAtTheEnds();
    void arrowsByField_data();
    void arrowsByField();
    void escapeGoesStepByStep();
    void deleteKeyBelongsToTheList_data();
    void deleteKeyBelongsToTheList();
    void composerCommits();
    void shortcutsFromAnyField();
    void controlTabGoesRoundTheTabs();
    void keysAfterALatePasteComeAfterIt();
    void controlReturnPastesTheSelectedNote();
    void locksAndNumberPadDoNotCount();
    void sameFieldCanBeAskedForTwice();
    void composingKeepsItsKeys();
    void typingBeginsASearch();
    void sourceIsBehindTheText();
};

void PanelKeysTest::init()
{
    PanelTest::init();
    addThree();
    QCOMPARE(model().keyboard()->activeField(), Field::None);
}

void PanelKeysTest::arrowsStopAtTheEnds()
{
    press(Qt::Key_Down);
    QCOMPARE(focusedText(), u"three"_s);
    press(Qt::Key_Up);
    QCOMPARE(focusedText(), u"three"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    QCOMPARE(focusedText(), u"one"_s);
    press(Qt::Key_Down);
    QCOMPARE(focusedText(), u"one"_s);
    press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(focusedText(), u"one"_s);

    // A search hides the selected card: Up starts from the end again.
    model().setSearch(u"t"_s);
    press(Qt::Key_Up);
    QCOMPARE(focusedText(), u"two"_s);
}

void PanelKeysTest::arrowsByField_data()
{
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("focused");
    QTest::addColumn<Field>("fieldAfter");

    QTest::newRow("list") << Field::None << u"one"_s << Field::None;
    QTest::newRow("search gives the keyboard to the list") << Field::Search << u"one"_s << Field::None;
    QTest::newRow("composer keeps its arrows") << Field::Composer << QString() << Field::Composer;
}

void PanelKeysTest::arrowsByField()
{
    QFETCH(Field, field);
    model().requestField(field);
    QCOMPARE(model().keyboard()->activeField(), field);
    press(Qt::Key_Up);
    QTEST(focusedText(), "focused");
    QTEST(model().keyboard()->activeField(), "fieldAfter");
}

void PanelKeysTest::escapeGoesStepByStep()
{
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"tw"_s);
    QCOMPARE(model().search(), u"tw"_s);
    press(Qt::Key_Escape, Qt::ShiftModifier);
    QCOMPARE(model().search(), u"tw"_s);
    press(Qt::Key_Escape);
    QCOMPARE(model().search(), QString());
    QCOMPARE(model().keyboard()->activeField(), Field::Search);
    press(Qt::Key_Escape);
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    QVERIFY(!m_fixture->application.isHidden());
    press(Qt::Key_Escape);
    QVERIFY(m_fixture->application.isHidden());
    QVERIFY(!panel().isShown());
}

void PanelKeysTest::deleteKeyBelongsToTheList_data()
{
    QTest::addColumn<int>("downs");
    QTest::addColumn<Field>("field");
    QTest::addColumn<QString>("focused");
    QTest::addColumn<int>("count");

    QTest::newRow("middle: the next takes its place") << 2 << Field::None << u"one"_s << 2;
    QTest::newRow("last: the new last") << 3 << Field::None << u"two"_s << 2;
    QTest::newRow("nothing selected") << 0 << Field::None << QString() << 3;
    QTest::newRow("search field") << 2 << Field::Search << u"two"_s << 3;
    QTest::newRow("composer") << 2 << Field::Composer << u"two"_s << 3;
}

void PanelKeysTest::deleteKeyBelongsToTheList()
{
    QFETCH(int, downs);
    QFETCH(Field, field);
    for (int i = 0; i < downs; ++i)
        press(Qt::Key_Down);
    model().requestField(field);
    press(Qt::Key_Backspace);
    QCOMPARE(store().notes().count(), 3);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    QTEST(static_cast<int>(store().notes().count()), "count");
    QTEST(focusedText(), "focused");
}

void PanelKeysTest::composerCommits()
{
    model().setSearch(u"tw"_s);
    press(Qt::Key_N, Qt::ControlModifier);
    type(u" list"_s);
    press(Qt::Key_Return, Qt::ShiftModifier);
    type(u"[] milk"_s);
    QCOMPARE(model().draft(), u" list\n[] milk"_s);
    press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(store().notes().count(), 3);
    model().setDraft(u" list\n[] milk"_s);
    press(Qt::Key_Enter, Qt::KeypadModifier);

    QCOMPARE(store().notes().count(), 4);
    QCOMPARE(store().notes().first()->text(), u"list\n\u2610 milk"_s);
    QVERIFY(!store().hasPendingChanges());
    QCOMPARE(model().draft(), QString());
    QCOMPARE(model().search(), QString());
    QCOMPARE(model().keyboard()->activeField(), Field::Composer);
    type(u"next"_s);
    QCOMPARE(model().draft(), u"next"_s);
}

void PanelKeysTest::shortcutsFromAnyField()
{
    for (const Field from : {Field::None, Field::Search, Field::Composer}) {
        model().requestField(from);
        press(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(model().keyboard()->activeField(), Field::Composer);
        model().requestField(from);
        press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(model().keyboard()->activeField(), Field::Search);
        press(Qt::Key_N, Qt::ControlModifier | Qt::AltModifier);
        QCOMPARE(model().keyboard()->activeField(), Field::Search);
    }
}

void PanelKeysTest::controlTabGoesRoundTheTabs()
{
    using Tab = PanelModel::Tab;
    addNote(u"☐ four"_s);
    for (const Field from : {Field::None, Field::Search, Field::Composer}) {
        model().requestField(from);
        press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(model().tab(), Tab::Prompts);
        press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(model().tab(), Tab::Notes);
        QCOMPARE(model().keyboard()->activeField(), from);
    }
    model().requestField(Field::None);
    for (const Tab next : {Tab::Checklists, Tab::Prompts}) {
        press(Qt::Key_Down);
        press(Qt::Key_Return);
        QTRY_VERIFY(model().keyboard()->isEditing());
        press(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(model().tab(), next);
        QVERIFY(!model().openNote()->id());
        QTRY_VERIFY(!model().keyboard()->isEditing());
    }
    // The keys act on the visible list, as before.
    press(Qt::Key_Tab, Qt::ControlModifier);
    press(Qt::Key_Down);
    QVERIFY(!focusedText().isEmpty());
}

/// The text's owner takes a moment, and the user continues at once.
void PanelKeysTest::keysAfterALatePasteComeAfterIt()
{
    m_fixture->pasteboard.setString(u"late"_s);
    m_fixture->pasteboard.setDelay(m_fixture->clock, 500ms);
    press(Qt::Key_N, Qt::ControlModifier);
    const qsizetype count = store().notes().count();
    press(Qt::Key_V, Qt::ControlModifier);
    type(u"r"_s);
    press(Qt::Key_Return);
    m_fixture->clock.advance(500ms);
    QCOMPARE(store().notes().count(), count + 1);
    QCOMPARE(store().notes().first()->text(), u"later"_s);
}

void PanelKeysTest::controlReturnPastesTheSelectedNote()
{
    QSignalSpy pastes(model().cards(), &CardActions::pasteRequested);
    press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(pastes.isEmpty());
    press(Qt::Key_Down);
    press(Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(!model().openNote()->id());
    press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(pastes.count(), 1);
    QCOMPARE(pastes.constFirst().constFirst().toString(), u"three"_s);
    for (const Qt::Key field : {Qt::Key_N, Qt::Key_F}) {
        press(field, Qt::ControlModifier);
        press(Qt::Key_Return, Qt::ControlModifier);
    }
    QCOMPARE(pastes.count(), 1);
}

void PanelKeysTest::locksAndNumberPadDoNotCount()
{
    press(Qt::Key_Down, Qt::KeypadModifier);
    QCOMPARE(focusedText(), u"three"_s);
    press(Qt::Key_Down, Qt::KeypadModifier | Qt::GroupSwitchModifier);
    QCOMPARE(focusedText(), u"two"_s);
}

void PanelKeysTest::sameFieldCanBeAskedForTwice()
{
    model().requestField(Field::Composer);
    window().rootObject()->forceActiveFocus();
    // The user has moved on with the mouse meanwhile.
    model().requestField(Field::Search);
    model().requestField(Field::Composer);
    model().requestField(Field::Composer);
    QCOMPARE(model().keyboard()->activeField(), Field::Composer);
}

void PanelKeysTest::composingKeepsItsKeys()
{
    press(Qt::Key_N, Qt::ControlModifier);
    QInputMethodEvent composing(u"kana"_s, {});
    QCoreApplication::sendEvent(window().focusObject(), &composing);
    press(Qt::Key_Escape);
    QCOMPARE(model().keyboard()->activeField(), Field::Composer);
    QInputMethodEvent committed;
    committed.setCommitString(u"x"_s);
    QCoreApplication::sendEvent(window().focusObject(), &committed);
    press(Qt::Key_Escape);
    QCOMPARE(model().keyboard()->activeField(), Field::None);
}

void PanelKeysTest::typingBeginsASearch()
{
    press(Qt::Key_Space);
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    type(u"Two"_s);
    QCOMPARE(model().search(), u"Two"_s);
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    QKeyEvent emoji(QEvent::KeyPress, 0, Qt::NoModifier, u"😀"_s);
    QCoreApplication::sendEvent(&window(), &emoji);
    QCOMPARE(model().search(), u"😀"_s);
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);

    // Into the note that the previous key opened.
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    type(u"y!"_s);
    QCOMPARE(model().editor()->textView()->text().last(2), u"y!"_s);

    // A letter typed beside the text of an open note must not close it.
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(!model().keyboard()->isEditing());
    type(u"x"_s);
    QVERIFY(model().openNote()->id());
    QCOMPARE(model().search(), QString());
}

void PanelKeysTest::sourceIsBehindTheText()
{
    const CaptureSource source{.app = u"Browser"_s, .bundleID = {}, .title = u"Page"_s, .url = {}};
    m_fixture->addNote(u"four"_s, source);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    QCOMPARE(window().activeFocusItem(), shown("SourceButton").value(0));
    press(Qt::Key_Tab);
    QVERIFY(model().keyboard()->isEditing());
}

QTEST_MAIN(PanelKeysTest)
#include "tst_panelkeys.moc"
