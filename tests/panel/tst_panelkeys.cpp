// SPDX-License-Identifier: MIT
#include "editor/notetextview.h"
#include "paneltest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Presses real keys on the panel's real window.
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
    void pasteGoesIntoTheFieldThatHasTheKeyboard();
    void keysAfterALatePasteComeAfterIt();
    void controlReturnPastesTheSelectedNote();
    void locksAndNumberPadDoNotCount();
    void sameFieldCanBeAskedForTwice();
    void composingKeepsItsKeys();
    void typingBeginsASearch();
    void sourceIsBehindTheText();
    void keysLeaveUnseenCardsAlone_data();
    void keysLeaveUnseenCardsAlone();
    void typingBringsTheOpenNoteBack();
    void buttonOutOfSightIsNotPressed_data();
    void buttonOutOfSightIsNotPressed();
    void heldKeysActOnce_data();
    void heldKeysActOnce();
    void heldReturnOpensANoteAndTypesNothing();
    void heldReturnTicksAPromptOnce();
    void heldArrowGoesOn();

private:
    [[nodiscard]] QString focusedText() const
    {
        const std::optional<RecordId> &id = model().selection()->selected();
        return id ? store().findNote(*id)->text() : QString();
    }
    /// Presses a key and keeps it down until it has repeated three times.
    void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {})
    {
        QTest::keyPress(&window(), key, modifiers);
        for (int i = 0; i < 3; ++i) {
            QKeyEvent repeat(QEvent::KeyPress, key, modifiers, text, true);
            QCoreApplication::sendEvent(&window(), &repeat);
        }
        QTest::keyRelease(&window(), key, modifiers);
    }
    /// Everything that the keys can do to records, as one text to compare.
    [[nodiscard]] QString state() const
    {
        const QString open = model().openNote()->cardId();
        return u"%1 notes, %2 prompts, %3 done, open: %4"_s.arg(store().notes().count())
            .arg(store().prompts().count())
            .arg(store().donePrompts().size())
            .arg(open.isEmpty() ? u"none"_s : open);
    }
    /// The row at the top of what can be seen of the list.
    [[nodiscard]] int topRow() const
    {
        for (const QQuickItem *row : shown("NoteRow")) {
            if (row->mapToScene(QPointF(0, row->height())).y() > 120)
                return row->property("index").toInt();
        }
        return -1;
    }
    void scrollToEnd()
    {
        QWheelEvent wheel(QPointF(220, 300), window().mapToGlobal(QPointF(220, 300)), {}, QPoint(0, -12000),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window(), &wheel);
    }
};

void PanelKeysTest::init()
{
    PanelTest::init();
    for (const QString &text : {u"one"_s, u"two"_s, u"three"_s})
        addNote(text);
    show();
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

    // A search takes the selected card away: Up begins at the end again.
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
    // The keys are those of the list that is shown, as they were.
    press(Qt::Key_Tab, Qt::ControlModifier);
    press(Qt::Key_Down);
    QVERIFY(!focusedText().isEmpty());
}

void PanelKeysTest::pasteGoesIntoTheFieldThatHasTheKeyboard()
{
    m_fixture->pasteboard.setString(u"one\n two"_s);
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(model().draft() + model().search(), QString());
    press(Qt::Key_N, Qt::ControlModifier);
    model().setDraft(u"instead of this"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(model().draft(), u"one\n two"_s);
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(model().search(), u"one two"_s);
    QCOMPARE(model().draft(), u"one\n two"_s);
}

/// The owner of the text takes a moment, and the user goes on at once.
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
    // The keyboard moves on to another field before the text is there.
    press(Qt::Key_V, Qt::ControlModifier);
    model().requestField(PanelModel::Field::Search);
    type(u"s"_s);
    m_fixture->clock.advance(500ms);
    QCOMPARE(model().draft(), u"late"_s);
    QCOMPARE(model().search(), u"s"_s);
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
    // The user has gone elsewhere by the mouse meanwhile.
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

    // Into the note that was opened by the key before.
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    type(u"y!"_s);
    QCOMPARE(model().editor()->textView()->text().last(2), u"y!"_s);

    // A letter beside the text of an open note must not close it.
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

void PanelKeysTest::keysLeaveUnseenCardsAlone_data()
{
    QTest::addColumn<QString>("hiding");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");

    for (const QString &hiding : {u"tab"_s, u"fold"_s, u"search"_s, u"wheel"_s}) {
        const QByteArray name = hiding.toLatin1();
        QTest::addRow("%s, delete", name.constData())
            << hiding << Qt::Key_Backspace << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::addRow("%s, open", name.constData())
            << hiding << Qt::Key_Return << Qt::KeyboardModifiers(Qt::NoModifier);
        QTest::addRow("%s, paste", name.constData())
            << hiding << Qt::Key_Return << Qt::KeyboardModifiers(Qt::ControlModifier);
    }
}

void PanelKeysTest::keysLeaveUnseenCardsAlone()
{
    QFETCH(QString, hiding);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    for (int i = 0; i < 40; ++i)
        addNote(u"note %1"_s.arg(i));
    m_fixture->addPrompt(u"why?"_s);
    QSignalSpy pastes(model().cards(), &CardActions::pasteRequested);
    press(Qt::Key_Down);
    QCOMPARE(focusedText(), u"note 39"_s);
    QTRY_COMPARE(shown("NoteCard").constFirst()->hasActiveFocus(), true);
    if (hiding == u"tab") {
        model().setTab(PanelModel::Tab::Prompts);
    } else if (hiding == u"fold") {
        model().notes()->toggleSection(0);
    } else if (hiding == u"search") {
        model().setSearch(u"two"_s);
    } else {
        scrollToEnd();
        QTRY_VERIFY(topRow() > 20);
    }
    const QString before = state();
    press(key, modifiers);
    QCOMPARE(state(), before);
    QVERIFY(pastes.isEmpty());

    // What was only scrolled away is brought back, and the key then does what it says.
    if (hiding == u"wheel") {
        QTRY_VERIFY(topRow() < 2);
        press(key, modifiers);
        QVERIFY(state() != before || !pastes.isEmpty());
    }
}

void PanelKeysTest::typingBringsTheOpenNoteBack()
{
    for (int i = 0; i < 40; ++i)
        addNote(u"note %1"_s.arg(i));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(model().keyboard()->isEditing());
    // The list comes to rest when the card is fully open.
    QTest::qWait(500);
    scrollToEnd();
    QTRY_VERIFY(topRow() > 20);
    type(u"!"_s);
    QTRY_VERIFY(topRow() < 2);
    QVERIFY(store().notes().first()->text().contains(u'!'));
}

void PanelKeysTest::buttonOutOfSightIsNotPressed_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("space") << Qt::Key_Space;
}

void PanelKeysTest::buttonOutOfSightIsNotPressed()
{
    QFETCH(Qt::Key, key);
    for (int i = 0; i < 40; ++i)
        addNote(u"note %1"_s.arg(i));
    press(Qt::Key_Down);
    QTRY_VERIFY(shown("NoteCard").constFirst()->hasActiveFocus());
    // Past the buttons that pin, copy and paste.
    for (int i = 0; i < 4; ++i)
        press(Qt::Key_Tab);
    QVERIFY(window().activeFocusItem()->property("name").toString().startsWith(u"Delete"));
    QVERIFY(model().keyboard()->isOnControl());
    const qsizetype count = store().notes().count();
    scrollToEnd();
    QTRY_VERIFY(topRow() > 20);
    press(key);
    QCOMPARE(store().notes().count(), count);
    QTRY_VERIFY(topRow() < 2);
    press(key);
    QCOMPARE(store().notes().count(), count - 1);
}

void PanelKeysTest::heldKeysActOnce_data()
{
    QTest::addColumn<QString>("draft");
    QTest::addColumn<Field>("field");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("pastes");

    const Qt::KeyboardModifiers none = Qt::NoModifier;
    const Qt::KeyboardModifiers control = Qt::ControlModifier;
    QTest::newRow("delete") << QString() << Field::None << Qt::Key_Backspace << control << 2 << 0;
    QTest::newRow("paste") << QString() << Field::None << Qt::Key_Return << control << 3 << 1;
    QTest::newRow("write") << u"four"_s << Field::Composer << Qt::Key_Return << none << 4 << 0;
    QTest::newRow("escape") << QString() << Field::Composer << Qt::Key_Escape << none << 3 << 0;
}

void PanelKeysTest::heldKeysActOnce()
{
    QFETCH(QString, draft);
    QFETCH(Field, field);
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    QSignalSpy pastes(model().cards(), &CardActions::pasteRequested);
    press(Qt::Key_Down);
    model().setDraft(draft);
    model().requestField(field);
    hold(key, modifiers);
    QTEST(static_cast<int>(store().notes().count()), "count");
    QTEST(static_cast<int>(pastes.count()), "pastes");
    QVERIFY(panel().isShown());
}

void PanelKeysTest::heldReturnOpensANoteAndTypesNothing()
{
    press(Qt::Key_Down);
    hold(Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QVERIFY(model().openNote()->id());
    QCOMPARE(store().notes().first()->text(), u"three"_s);
    QTRY_VERIFY(model().keyboard()->isEditing());
    // From the text it closes the note, and pastes nothing.
    QSignalSpy pastes(model().cards(), &CardActions::pasteRequested);
    hold(Qt::Key_Return, Qt::ControlModifier, u"\r"_s);
    QVERIFY(!model().openNote()->id() && pastes.isEmpty());
    // The same from a search, whose field gives the keyboard to the text.
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"tw"_s);
    hold(Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QCOMPARE(store().notes().at(1).text(), u"two"_s);
    // Pressed once more it is the text's, and goes on as in any text.
    hold(Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QCOMPARE(store().findNote(*model().openNote()->id())->text(), u"two\n\n\n\n"_s);
}

void PanelKeysTest::heldReturnTicksAPromptOnce()
{
    const Prompt &prompt = m_fixture->addPrompt(u"why?"_s);
    model().setTab(PanelModel::Tab::Prompts);
    press(Qt::Key_Down);
    hold(Qt::Key_Return);
    QVERIFY(prompt.isDone());
    // By its box as well.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        const bool wasDone = prompt.isDone();
        QTRY_VERIFY(!shown("CheckCircle").isEmpty());
        shown("CheckCircle").constFirst()->parentItem()->forceActiveFocus();
        hold(key);
        QCOMPARE(prompt.isDone(), !wasDone);
    }
}

void PanelKeysTest::heldArrowGoesOn()
{
    hold(Qt::Key_Down);
    QCOMPARE(focusedText(), u"one"_s);
}

QTEST_MAIN(PanelKeysTest)
#include "tst_panelkeys.moc"
