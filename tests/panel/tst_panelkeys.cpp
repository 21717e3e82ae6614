// SPDX-License-Identifier: MIT
#include "panelfixture.h"

#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

using Field = PanelModel::Field;

/// Presses real keys on the panel's real window.
class PanelKeysTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

private Q_SLOTS:
    void init();
    void cleanup() { m_fixture.reset(); }
    void arrowsStopAtTheEnds();
    void arrowsByField_data();
    void arrowsByField();
    void escapeGoesStepByStep();
    void deleteKeyBelongsToTheList_data();
    void deleteKeyBelongsToTheList();
    void composerKeepsABlankDraft();
    void composerCommits();
    void shortcutsFromAnyField_data();
    void shortcutsFromAnyField();
    void pasteGoesIntoTheFieldThatHasTheKeyboard();
    void controlReturnPastesTheSelectedNote();
    void locksAndNumberPadDoNotCount();
    void sameFieldCanBeAskedForTwice();
    void composingKeepsItsKeys();
    void typingBeginsASearch();

private:
    [[nodiscard]] QString focusedText() const
    {
        const std::optional<RecordId> &id = m_fixture->model.selection()->selected();
        return id ? m_fixture->store->findNote(*id)->text() : QString();
    }

    std::unique_ptr<PanelFixture> m_fixture;
};

void PanelKeysTest::init()
{
    m_fixture = std::make_unique<PanelFixture>();
    for (const QString &text : {u"one"_s, u"two"_s, u"three"_s})
        m_fixture->addNote(text);
    m_fixture->show();
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::None);
}

void PanelKeysTest::arrowsStopAtTheEnds()
{
    m_fixture->press(Qt::Key_Down);
    QCOMPARE(focusedText(), u"three"_s);
    m_fixture->press(Qt::Key_Up);
    QCOMPARE(focusedText(), u"three"_s);
    m_fixture->press(Qt::Key_Down);
    m_fixture->press(Qt::Key_Down);
    QCOMPARE(focusedText(), u"one"_s);
    m_fixture->press(Qt::Key_Down);
    QCOMPARE(focusedText(), u"one"_s);
    m_fixture->press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(focusedText(), u"one"_s);

    // A search takes the selected card away: Up begins at the end again.
    m_fixture->model.setSearch(u"t"_s);
    m_fixture->press(Qt::Key_Up);
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
    m_fixture->model.requestField(field);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), field);
    m_fixture->press(Qt::Key_Up);
    QTEST(focusedText(), "focused");
    QTEST(m_fixture->model.keyboard()->activeField(), "fieldAfter");
}

void PanelKeysTest::escapeGoesStepByStep()
{
    m_fixture->press(Qt::Key_F, Qt::ControlModifier);
    m_fixture->type(u"tw"_s);
    QCOMPARE(m_fixture->model.search(), u"tw"_s);
    m_fixture->press(Qt::Key_Escape, Qt::ShiftModifier);
    QCOMPARE(m_fixture->model.search(), u"tw"_s);
    m_fixture->press(Qt::Key_Escape);
    QCOMPARE(m_fixture->model.search(), QString());
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Search);
    m_fixture->press(Qt::Key_Escape);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::None);
    QVERIFY(!m_fixture->application.isHidden());
    m_fixture->press(Qt::Key_Escape);
    QVERIFY(m_fixture->application.isHidden());
    QVERIFY(!m_fixture->panel.isShown());
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
        m_fixture->press(Qt::Key_Down);
    m_fixture->model.requestField(field);
    m_fixture->press(Qt::Key_Backspace);
    QCOMPARE(m_fixture->store->notes().count(), 3);
    m_fixture->press(Qt::Key_Backspace, Qt::ControlModifier);
    QTEST(static_cast<int>(m_fixture->store->notes().count()), "count");
    QTEST(focusedText(), "focused");
}

void PanelKeysTest::composerKeepsABlankDraft()
{
    m_fixture->press(Qt::Key_N, Qt::ControlModifier);
    m_fixture->type(u"  "_s);
    m_fixture->press(Qt::Key_Return);
    QCOMPARE(m_fixture->model.draft(), u"  "_s);
    QCOMPARE(m_fixture->store->notes().count(), 3);
}

void PanelKeysTest::composerCommits()
{
    m_fixture->model.setSearch(u"tw"_s);
    m_fixture->press(Qt::Key_N, Qt::ControlModifier);
    m_fixture->type(u" list"_s);
    m_fixture->press(Qt::Key_Return, Qt::ShiftModifier);
    m_fixture->type(u"[] milk"_s);
    QCOMPARE(m_fixture->model.draft(), u" list\n[] milk"_s);
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(m_fixture->store->notes().count(), 3);
    m_fixture->model.setDraft(u" list\n[] milk"_s);
    m_fixture->press(Qt::Key_Enter, Qt::KeypadModifier);

    QCOMPARE(m_fixture->store->notes().count(), 4);
    QCOMPARE(m_fixture->store->notes().first()->text(), u"list\n\u2610 milk"_s);
    QVERIFY(!m_fixture->store->hasPendingChanges());
    QCOMPARE(m_fixture->model.draft(), QString());
    QCOMPARE(m_fixture->model.search(), QString());
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Composer);
    m_fixture->type(u"next"_s);
    QCOMPARE(m_fixture->model.draft(), u"next"_s);
}

void PanelKeysTest::shortcutsFromAnyField_data()
{
    QTest::addColumn<Field>("from");
    QTest::newRow("list") << Field::None;
    QTest::newRow("search") << Field::Search;
    QTest::newRow("composer") << Field::Composer;
}

void PanelKeysTest::shortcutsFromAnyField()
{
    QFETCH(Field, from);
    m_fixture->model.requestField(from);
    m_fixture->press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Composer);
    m_fixture->model.requestField(from);
    m_fixture->press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Search);
    m_fixture->press(Qt::Key_N, Qt::ControlModifier | Qt::AltModifier);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Search);
}

void PanelKeysTest::pasteGoesIntoTheFieldThatHasTheKeyboard()
{
    QSignalSpy pastes(m_fixture->model.keyboard(), &PanelKeyboard::fieldPasteRequested);
    m_fixture->press(Qt::Key_V, Qt::ControlModifier);
    QVERIFY(pastes.isEmpty());
    m_fixture->press(Qt::Key_N, Qt::ControlModifier);
    m_fixture->model.setDraft(u"instead of this"_s);
    m_fixture->press(Qt::Key_A, Qt::ControlModifier);
    m_fixture->press(Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(pastes.count(), 1);
    m_fixture->model.keyboard()->insertIntoField(u"one\ntwo"_s);
    QCOMPARE(m_fixture->model.draft(), u"one\ntwo"_s);
    m_fixture->press(Qt::Key_F, Qt::ControlModifier);
    m_fixture->press(Qt::Key_Insert, Qt::ShiftModifier);
    QCOMPARE(pastes.count(), 2);
    m_fixture->model.keyboard()->insertIntoField(u"one\n two"_s);
    QCOMPARE(m_fixture->model.search(), u"one two"_s);
    QCOMPARE(m_fixture->model.draft(), u"one\ntwo"_s);
}

void PanelKeysTest::controlReturnPastesTheSelectedNote()
{
    QSignalSpy pastes(m_fixture->model.cards(), &CardActions::pasteRequested);
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(pastes.isEmpty());
    m_fixture->press(Qt::Key_Down);
    m_fixture->press(Qt::Key_Return, Qt::ShiftModifier);
    QVERIFY(!m_fixture->model.openNote()->id());
    m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(pastes.count(), 1);
    QCOMPARE(pastes.constFirst().constFirst().toString(), u"three"_s);
    for (const Qt::Key field : {Qt::Key_N, Qt::Key_F}) {
        m_fixture->press(field, Qt::ControlModifier);
        m_fixture->press(Qt::Key_Return, Qt::ControlModifier);
    }
    QCOMPARE(pastes.count(), 1);
}

void PanelKeysTest::locksAndNumberPadDoNotCount()
{
    m_fixture->press(Qt::Key_Down, Qt::KeypadModifier);
    QCOMPARE(focusedText(), u"three"_s);
    m_fixture->press(Qt::Key_Down, Qt::KeypadModifier | Qt::GroupSwitchModifier);
    QCOMPARE(focusedText(), u"two"_s);
}

void PanelKeysTest::sameFieldCanBeAskedForTwice()
{
    m_fixture->model.requestField(Field::Composer);
    m_fixture->panel.window().rootObject()->forceActiveFocus();
    // The user has gone elsewhere by the mouse meanwhile.
    m_fixture->model.requestField(Field::Search);
    m_fixture->model.requestField(Field::Composer);
    m_fixture->model.requestField(Field::Composer);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Composer);
}

void PanelKeysTest::composingKeepsItsKeys()
{
    m_fixture->press(Qt::Key_N, Qt::ControlModifier);
    QInputMethodEvent composing(u"kana"_s, {});
    QCoreApplication::sendEvent(m_fixture->panel.window().focusObject(), &composing);
    m_fixture->press(Qt::Key_Escape);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::Composer);
    QInputMethodEvent committed;
    committed.setCommitString(u"x"_s);
    QCoreApplication::sendEvent(m_fixture->panel.window().focusObject(), &committed);
    m_fixture->press(Qt::Key_Escape);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::None);
}

void PanelKeysTest::typingBeginsASearch()
{
    press(Qt::Key_Space);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::None);
    type(u"Two"_s);
    QCOMPARE(m_fixture->model.search(), u"Two"_s);
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    QCOMPARE(m_fixture->model.keyboard()->activeField(), Field::None);

    // A letter beside the text of an open note must not close it.
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(!m_fixture->model.keyboard()->isEditing());
    type(u"x"_s);
    QVERIFY(m_fixture->model.openNote()->id());
    QCOMPARE(m_fixture->model.search(), QString());
}

QTEST_MAIN(PanelKeysTest)
#include "tst_panelkeys.moc"
