// SPDX-License-Identifier: MIT
#include "paneltest.h"

#include <QInputMethodEvent>

#include <functional>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Writing with an input method in the panel: what happens to text being composed when something else
/// happens, and how it is erased and undone. This test's input method does not respond to requests to commit.
class PanelWritingTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void openNoteKeepsIt_data();
    void openNoteKeepsIt();
    void blankNoteStaysWithIt();
    void openNoteKeepsItAtTheEnd();
    void fieldKeepsIt_data();
    void fieldKeepsIt();
    void composerErasesAndUndoesAsTheEditorDoes();

private:
    using Step = std::function<void(PanelWritingTest &)>;

    void openLast();
    void compose(const QString &text) const;
};

void PanelWritingTest::init()
{
    PanelTest::init();
    addNote(u"one"_s);
    addNote(u"two"_s);
    show();
    QTRY_COMPARE(shown("NoteCard").size(), 2);
}

void PanelWritingTest::openLast()
{
    click(*shown("NoteCard").constFirst());
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_End, Qt::ControlModifier);
}

void PanelWritingTest::compose(const QString &text) const
{
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(window().focusObject(), &event);
}

void PanelWritingTest::openNoteKeepsIt_data()
{
    QTest::addColumn<Step>("step");
    QTest::newRow("closed") << Step([](PanelWritingTest &test) { test.model().openNote()->close(); });
    QTest::newRow("click on another card")
        << Step([](PanelWritingTest &test) { test.click(*test.shown("NoteCard").constLast()); });
    QTest::newRow("click on the composer")
        << Step([](PanelWritingTest &test) { test.click(*test.shown("Composer").constFirst()); });
    QTest::newRow("another tab") << Step(
        [](PanelWritingTest &test) { test.model().setTab(PanelModel::Tab::Prompts); });
    QTest::newRow("panel hidden") << Step([](PanelWritingTest &test) { test.panel().togglePanel(); });
    QTest::newRow("another application")
        << Step([](PanelWritingTest &test) { test.m_fixture->application.resignActive(); });
}

void PanelWritingTest::openNoteKeepsIt()
{
    QFETCH(const Step, step);
    for (const bool isStill : {true, false}) {
        m_fixture->appearance.setReduceMotion(isStill);
        Note &note = *store().notes().first();
        const QString before = note.text();
        openLast();
        compose(u"ni"_s);
        step(*this);
        QCOMPARE(note.text(), before + u"ni"_s);
        // And it does not appear a second time when the editor is destroyed.
        QTest::qWait(0);
        model().openNote()->close();
        model().setTab(PanelModel::Tab::Notes);
        show();
        QTRY_VERIFY(shown("NoteEditor").isEmpty());
        QCOMPARE(note.text(), before + u"ni"_s);
        QVERIFY(!store().hasPendingChanges());
    }
}

void PanelWritingTest::blankNoteStaysWithIt()
{
    const RecordId id = store().notes().first()->id();
    openLast();
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Backspace);
    compose(u"ni"_s);
    m_fixture->application.resignActive();
    QVERIFY(store().findNote(id));
    QCOMPARE(store().findNote(id)->text(), u"ni"_s);
}

void PanelWritingTest::openNoteKeepsItAtTheEnd()
{
    const RecordId id = store().notes().first()->id();
    openLast();
    compose(u"ni"_s);
    const std::unique_ptr<NotesStore> kept = std::move(m_fixture->store);
    m_fixture.reset();
    QCOMPARE(kept->findNote(id)->text(), u"twoni"_s);
    QVERIFY(!kept->hasPendingChanges());
}

void PanelWritingTest::fieldKeepsIt_data()
{
    QTest::addColumn<Step>("step");
    QTest::newRow("click on a card") << Step(
        [](PanelWritingTest &test) { test.click(*test.shown("NoteCard").constLast()); });
    QTest::newRow("panel hidden") << Step([](PanelWritingTest &test) { test.panel().togglePanel(); });
    QTest::newRow("another field") << Step([](PanelWritingTest &test) {
        const bool isInComposer = test.model().keyboard()->activeField() == Field::Composer;
        test.model().requestField(isInComposer ? Field::Search : Field::Composer);
    });
}

void PanelWritingTest::fieldKeepsIt()
{
    QFETCH(const Step, step);
    for (const Field field : {Field::Composer, Field::Search}) {
        model().requestField(field);
        press(Qt::Key_T);
        compose(u"wo"_s);
        step(*this);
        QCOMPARE(field == Field::Composer ? model().draft() : model().search(), u"two"_s);
        show();
        model().setDraft({});
        model().setSearch({});
        model().setTab(PanelModel::Tab::Notes);
        model().openNote()->close();
    }
}

void PanelWritingTest::composerErasesAndUndoesAsTheEditorDoes()
{
    model().requestField(Field::Composer);
    QQuickItem &edit = *window().activeFocusItem();
    m_fixture->pasteboard.setString(u"tea 👨‍👩‍👧‍👦"_s);
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_Backspace);
    QCOMPARE(model().draft(), u"tea "_s);
    // Each line begins at its own side, and lines that the panel writes can be undone, too.
    const qreal left = edit.property("cursorRectangle").toRectF().x();
    press(Qt::Key_Return, Qt::ShiftModifier);
    compose(u"שלום"_s);
    QVERIFY(edit.property("cursorRectangle").toRectF().x() > left + 50);
    QInputMethodEvent commit;
    commit.setCommitString(u"שלום"_s);
    QCoreApplication::sendEvent(&edit, &commit);
    for (const QString &state :
         {u"tea \nשלום"_s, u"tea \n"_s, u"tea "_s, u"tea 👨‍👩‍👧‍👦"_s, QString()}) {
        QCOMPARE(model().draft(), state);
        press(Qt::Key_Z, Qt::ControlModifier);
    }
    // A draft that has been kept as a note does not reappear.
    type(u"milk"_s);
    press(Qt::Key_Return);
    press(Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(model().draft(), QString());
}

QTEST_MAIN(PanelWritingTest)
#include "tst_panelwriting.moc"
