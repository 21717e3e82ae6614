// SPDX-License-Identifier: MIT
#include "paneltest.h"

#include <QInputMethodEvent>

#include <functional>

using namespace Qt::StringLiterals;
using namespace vesk;

/// What is being composed in the panel when something else happens. The input method of this test does not
/// answer when it is asked to commit.
class PanelComposingTest : public PanelTest
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

private:
    using Step = std::function<void(PanelComposingTest &)>;

    void openLast();
    void compose(const QString &text) const;
};

void PanelComposingTest::init()
{
    PanelTest::init();
    addNote(u"one"_s);
    addNote(u"two"_s);
    show();
    QTRY_COMPARE(shown("NoteCard").size(), 2);
}

void PanelComposingTest::openLast()
{
    click(*shown("NoteCard").constFirst());
    QTRY_VERIFY(model().keyboard()->isEditing());
    press(Qt::Key_End, Qt::ControlModifier);
}

void PanelComposingTest::compose(const QString &text) const
{
    QInputMethodEvent event(text, {});
    QCoreApplication::sendEvent(window().focusObject(), &event);
}

void PanelComposingTest::openNoteKeepsIt_data()
{
    QTest::addColumn<Step>("step");
    QTest::newRow("closed") << Step([](PanelComposingTest &test) { test.model().openNote()->close(); });
    QTest::newRow("click on another card")
        << Step([](PanelComposingTest &test) { test.click(*test.shown("NoteCard").constLast()); });
    QTest::newRow("click on the composer")
        << Step([](PanelComposingTest &test) { test.click(*test.shown("Composer").constFirst()); });
    QTest::newRow("another tab") << Step(
        [](PanelComposingTest &test) { test.model().setTab(PanelModel::Tab::Prompts); });
    QTest::newRow("panel hidden") << Step([](PanelComposingTest &test) { test.panel().togglePanel(); });
    QTest::newRow("another application")
        << Step([](PanelComposingTest &test) { test.m_fixture->application.resignActive(); });
}

void PanelComposingTest::openNoteKeepsIt()
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
        // Nor does it come a second time when the editor goes.
        QTest::qWait(0);
        model().openNote()->close();
        model().setTab(PanelModel::Tab::Notes);
        show();
        QTRY_VERIFY(shown("NoteEditor").isEmpty());
        QCOMPARE(note.text(), before + u"ni"_s);
        QVERIFY(!store().hasPendingChanges());
    }
}

void PanelComposingTest::blankNoteStaysWithIt()
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

void PanelComposingTest::openNoteKeepsItAtTheEnd()
{
    const RecordId id = store().notes().first()->id();
    openLast();
    compose(u"ni"_s);
    const std::unique_ptr<NotesStore> kept = std::move(m_fixture->store);
    m_fixture.reset();
    QCOMPARE(kept->findNote(id)->text(), u"twoni"_s);
    QVERIFY(!kept->hasPendingChanges());
}

void PanelComposingTest::fieldKeepsIt_data()
{
    QTest::addColumn<Step>("step");
    QTest::newRow("click on a card") << Step(
        [](PanelComposingTest &test) { test.click(*test.shown("NoteCard").constLast()); });
    QTest::newRow("panel hidden") << Step([](PanelComposingTest &test) { test.panel().togglePanel(); });
    QTest::newRow("another field") << Step([](PanelComposingTest &test) {
        const bool isInComposer = test.model().keyboard()->activeField() == Field::Composer;
        test.model().requestField(isInComposer ? Field::Search : Field::Composer);
    });
}

void PanelComposingTest::fieldKeepsIt()
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

QTEST_MAIN(PanelComposingTest)
#include "tst_panelcomposing.moc"
