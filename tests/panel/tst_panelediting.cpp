// SPDX-License-Identifier: MIT
#include "editor/notetextview.h"
#include "paneltest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vesk;

using Tab = PanelModel::Tab;

/// Opening, editing and closing a note in the panel's real view.
class PanelEditingTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void noteIsEditedInPlace();
    void editorKeepsItsKeys();
    void fieldTakesTheKeyboardFromTheEditor();
    void closingEditorTakesNoKeyboard();
    void closingCardMayGoAtOnce();
    void cardThatLeavesTheListOpensNoMore();
    void cardOpensAgainWhileItCloses();
    void clickBesideTheCardsCloses();
    void openingMovesNothingElse();
    void cardClosesBeforeItsRowMoves();
    void searchGivesCardsOtherNotes();
    void clickOnAnotherTabClosesTheNote();
};

void PanelEditingTest::init()
{
    PanelTest::init();
    addThree();
}

void PanelEditingTest::noteIsEditedInPlace()
{
    Note &two = store().notes().at(1);
    click(*shown("NoteCard").at(1));
    QCOMPARE(model().openNote()->id(), two.id());
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_End, Qt::ControlModifier);
    type(u" more"_s);
    QCOMPARE(two.text(), u"two more"_s);
    // It has kept its position among the others.
    QCOMPARE(model().notes()->visibleIndex(two.id()), 1);

    press(Qt::Key_Return, Qt::ControlModifier);
    QTRY_VERIFY(!hasEditor());
    QCOMPARE(model().notes()->visibleIndex(two.id()), 0);
    QVERIFY(!store().hasPendingChanges());
    // The list has the keys again.
    press(Qt::Key_Down);
    QCOMPARE(model().selection()->selected(), store().notes().at(1).id());
}

void PanelEditingTest::editorKeepsItsKeys()
{
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_N, Qt::ControlModifier);
    press(Qt::Key_Down);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Backspace);
    type(u" "_s);
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    QCOMPARE(store().notes().first()->text(), u" "_s);
    press(Qt::Key_Escape);
    // A note left blank is removed.
    QTRY_VERIFY(!hasEditor());
    QCOMPARE(store().notes().count(), 2);
    QVERIFY(!model().selection()->selected() && !store().hasPendingChanges());
    QVERIFY(!m_fixture->application.isHidden());
}

void PanelEditingTest::fieldTakesTheKeyboardFromTheEditor()
{
    click(*shown("NoteCard").constFirst());
    QTRY_VERIFY(model().keyboard()->isEditing());
    click(*shown("Composer").constFirst());
    QCOMPARE(model().keyboard()->activeField(), Field::Composer);
    QVERIFY(!model().openNote()->id());
    type(u"new"_s);
    QCOMPARE(model().draft(), u"new"_s);
}

void PanelEditingTest::closingEditorTakesNoKeyboard()
{
    m_fixture->appearance.setReduceMotion(false);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(hasEditor());
    // Before the editor takes the focus by itself.
    model().setDraft(u"four"_s);
    model().requestField(Field::Composer);
    QVERIFY(!model().openNote()->id());
    press(Qt::Key_Return);
    QCOMPARE(store().notes().count(), 4);
    QTRY_VERIFY(!hasEditor());
    QCOMPARE(model().keyboard()->activeField(), Field::Composer);
}

void PanelEditingTest::closingCardMayGoAtOnce()
{
    QTest::failOnWarning(QRegularExpression(u"TypeError"_s));
    m_fixture->appearance.setReduceMotion(false);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_Escape);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    QCOMPARE(store().notes().count(), 2);
    QTRY_COMPARE(shown("NoteCard").size(), 2);
    QTRY_VERIFY(!hasEditor());
}

void PanelEditingTest::cardThatLeavesTheListOpensNoMore()
{
    m_fixture->appearance.setReduceMotion(false);
    const QString id = store().notes().first()->id().toString(QUuid::WithoutBraces);
    const QQuickItem *row = shown("NoteRow").at(1);
    QTRY_COMPARE(row->opacity(), 1.0);
    model().notes()->toggleSection(0);
    QTRY_VERIFY(row->opacity() < 1);
    model().notes()->toggleSection(0);
    model().cards()->activate(id);
    // The row that has taken its place opens.
    QTRY_VERIFY(model().editor()->textView());
    model().cards()->edit(id, u"changed"_s);
    QCOMPARE(model().editor()->textView()->text(), u"changed"_s);
}

void PanelEditingTest::cardOpensAgainWhileItCloses()
{
    m_fixture->appearance.setReduceMotion(false);
    Note &first = *store().notes().first();
    const auto activate = [this](const Note &note) {
        model().cards()->activate(note.id().toString(QUuid::WithoutBraces));
    };
    activate(first);
    QTRY_VERIFY(model().keyboard()->isEditing());
    activate(store().notes().at(1));
    model().requestField(Field::Composer);
    activate(first);
    // It has the keys again, and so do the commands.
    const QString before = first.text();
    type(u"x"_s);
    QCOMPARE(first.text(), before + u'x');
    model().editor()->toggleLinePrefix(u"# "_s);
    QCOMPARE(first.text(), u"# "_s + before + u'x');
}

void PanelEditingTest::clickBesideTheCardsCloses()
{
    click(*shown("NoteCard").constFirst());
    QTRY_VERIFY(hasEditor());
    // The editor gets a click in the open card.
    click(*shown("NoteForm").constFirst());
    QVERIFY(model().openNote()->id());
    QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(220, window().height() - 120));
    QVERIFY(!model().openNote()->id());
}

void PanelEditingTest::openingMovesNothingElse()
{
    for (int i = 0; i < 40; ++i)
        addNote(u"note %1"_s.arg(i));
    const auto card = [this](int number) { return shown("NoteCard").at(number); };
    QTRY_VERIFY(shown("NoteCard").size() > 4);
    const qreal before = card(1)->mapToScene({}).y();
    const qreal height = card(1)->height();
    click(*card(1));
    QTRY_VERIFY(hasEditor());
    QTRY_VERIFY(card(1)->height() > height);
    QCOMPARE(card(1)->mapToScene({}).y(), before);
    press(Qt::Key_Escape);
    QTRY_COMPARE(card(1)->height(), height);
    QCOMPARE(card(1)->mapToScene({}).y(), before);
}

void PanelEditingTest::cardClosesBeforeItsRowMoves()
{
    // A view that destroys an editor in the middle of a move may crash.
    model().openNote()->open(store().notes().at(store().notes().count() - 1));
    QTRY_VERIFY(hasEditor());
    press(Qt::Key_X);
    const QSignalSpy moves(model().notes(), &QAbstractItemModel::rowsMoved);
    bool isOpenInMove = false;
    connect(model().notes(), &QAbstractItemModel::rowsAboutToBeMoved, this,
            [&] { isOpenInMove = isOpenInMove || hasEditor(); });
    press(Qt::Key_Escape);
    QCOMPARE(moves.size(), 1);
    QVERIFY(!isOpenInMove);
}

/// The card that a search keeps still fades from its editor to its note.
void PanelEditingTest::searchGivesCardsOtherNotes()
{
    m_fixture->appearance.setReduceMotion(false);
    const QList<QQuickItem *> cards = shown("NoteCard");
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_Escape);
    QVERIFY(hasEditor());
    model().setSearch(u"two"_s);
    QTRY_COMPARE(shown("NoteCard"), cards.first(1));
    QCOMPARE(cards.constFirst()->property("cardId").toString(),
             model().notes()->visibleAt(0).toString(QUuid::WithoutBraces));
    QVERIFY(!hasEditor());
    model().setSearch({});
    QTRY_COMPARE(shown("NoteCard").size(), 3);
}

void PanelEditingTest::clickOnAnotherTabClosesTheNote()
{
    Note &note = store().notes().at(0);
    click(*shown("NoteCard").constFirst());
    QTRY_VERIFY(model().keyboard()->isEditing());
    click(*button(u"Notes"_s));
    QCOMPARE(model().openNote()->id(), note.id());
    click(*button(u"Prompts"_s));
    QVERIFY(!model().openNote()->id());
    click(*button(u"Notes"_s));
    QTRY_COMPARE(shown("NoteCard").size(), 3);
    QTRY_VERIFY(!hasEditor());
}

QTEST_MAIN(PanelEditingTest)
#include "tst_panelediting.moc"
