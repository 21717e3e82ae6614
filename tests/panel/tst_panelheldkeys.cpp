// SPDX-License-Identifier: MIT
#include "paneltest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Keys that are held, and keys that are pressed while their target is not visible.
class PanelHeldKeysTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
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
    /// Presses a key and holds it until it has repeated three times.
    void hold(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString &text = {})
    {
        QTest::keyPress(&window(), key, modifiers);
        for (int i = 0; i < 3; ++i) {
            QKeyEvent repeat(QEvent::KeyPress, key, modifiers, text, true);
            QCoreApplication::sendEvent(&window(), &repeat);
        }
        QTest::keyRelease(&window(), key, modifiers);
    }
    /// Everything that keys can do to records, as a text for comparison.
    [[nodiscard]] QString state() const
    {
        const QString open = model().openNote()->cardId();
        return u"%1 notes, %2 prompts, %3 done, open: %4"_s.arg(store().notes().count())
            .arg(store().prompts().count())
            .arg(store().donePrompts().size())
            .arg(open.isEmpty() ? u"none"_s : open);
    }
    /// The topmost visible row of the list.
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

void PanelHeldKeysTest::init()
{
    PanelTest::init();
    addThree();
}

void PanelHeldKeysTest::keysLeaveUnseenCardsAlone_data()
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

void PanelHeldKeysTest::keysLeaveUnseenCardsAlone()
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

    // A card that was only scrolled away is brought back, and the next key then acts.
    if (hiding == u"wheel") {
        QTRY_VERIFY(topRow() < 2);
        press(key, modifiers);
        QVERIFY(state() != before || !pastes.isEmpty());
    }
}

void PanelHeldKeysTest::typingBringsTheOpenNoteBack()
{
    for (int i = 0; i < 40; ++i)
        addNote(u"note %1"_s.arg(i));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(model().keyboard()->isEditing());
    // The list stops moving when the card is fully open.
    QTest::qWait(500);
    scrollToEnd();
    QTRY_VERIFY(topRow() > 20);
    type(u"!"_s);
    QTRY_VERIFY(topRow() < 2);
    QVERIFY(store().notes().first()->text().contains(u'!'));
}

void PanelHeldKeysTest::buttonOutOfSightIsNotPressed_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("return") << Qt::Key_Return;
    QTest::newRow("space") << Qt::Key_Space;
}

void PanelHeldKeysTest::buttonOutOfSightIsNotPressed()
{
    QFETCH(Qt::Key, key);
    for (int i = 0; i < 40; ++i)
        addNote(u"note %1"_s.arg(i));
    press(Qt::Key_Down);
    QTRY_VERIFY(shown("NoteCard").constFirst()->hasActiveFocus());
    // Past the pin, copy and paste buttons.
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

void PanelHeldKeysTest::heldKeysActOnce_data()
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

void PanelHeldKeysTest::heldKeysActOnce()
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

void PanelHeldKeysTest::heldReturnOpensANoteAndTypesNothing()
{
    press(Qt::Key_Down);
    hold(Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QVERIFY(model().openNote()->id());
    QCOMPARE(store().notes().first()->text(), u"three"_s);
    QTRY_VERIFY(model().keyboard()->isEditing());
    // Pressed in the text, it closes the note and pastes nothing.
    QSignalSpy pastes(model().cards(), &CardActions::pasteRequested);
    hold(Qt::Key_Return, Qt::ControlModifier, u"\r"_s);
    QVERIFY(!model().openNote()->id() && pastes.isEmpty());
    // The same from a search, whose field passes the focus to the text.
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"tw"_s);
    hold(Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QCOMPARE(store().notes().at(1).text(), u"two"_s);
    // Pressed again, it belongs to the text, and repeats as in any text.
    hold(Qt::Key_Return, Qt::NoModifier, u"\r"_s);
    QCOMPARE(store().findNote(*model().openNote()->id())->text(), u"two\n\n\n\n"_s);
}

void PanelHeldKeysTest::heldReturnTicksAPromptOnce()
{
    const Prompt &prompt = m_fixture->addPrompt(u"why?"_s);
    model().setTab(PanelModel::Tab::Prompts);
    press(Qt::Key_Down);
    hold(Qt::Key_Return);
    QVERIFY(prompt.isDone());
    // With its checkbox, too.
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Space}) {
        const bool wasDone = prompt.isDone();
        QTRY_VERIFY(!shown("CheckCircle").isEmpty());
        shown("CheckCircle").constFirst()->parentItem()->forceActiveFocus();
        hold(key);
        QCOMPARE(prompt.isDone(), !wasDone);
    }
}

void PanelHeldKeysTest::heldArrowGoesOn()
{
    hold(Qt::Key_Down);
    QCOMPARE(focusedText(), u"one"_s);
}

QTEST_MAIN(PanelHeldKeysTest)
#include "tst_panelheldkeys.moc"
