// SPDX-License-Identifier: MIT
#include "paneltest.h"

using namespace Qt::StringLiterals;
using namespace vesk;

/// The panel's window as the user meets it: where it comes up, in which state, when it goes.
class PanelWindowTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<PanelFixture>(); }
    void comesUpOnTheScreenUnderThePointer();
    void toggles();
    void fadesOnlyWhereThatIsWanted_data();
    void fadesOnlyWhereThatIsWanted();
    void anotherApplicationTakesNothingAway();
};

void PanelWindowTest::comesUpOnTheScreenUnderThePointer()
{
    const QRectF first(0, 0, 1600, 1000);
    const QRectF second(1600, 0, 1200, 800);
    m_fixture->screens.setScreens({{.frame = first, .visibleFrame = first},
                                   {.frame = second, .visibleFrame = second.adjusted(0, 40, 0, 0)}});
    m_fixture->screens.setMouseLocation(QPointF(2000, 400));
    model().setSearch(u"left over"_s);
    panel().showPanel();
    QCOMPARE(m_fixture->windows.frame(), QRectF(2350, 50, 440, 620));
    QCOMPARE(window().title(), u"Vesk"_s);
    QCOMPARE(model().search(), QString());
    QCOMPARE(m_fixture->application.activatedWindow(), &window());

    // A change of the screens leaves it on its own, not on the pointer's.
    m_fixture->screens.setMouseLocation(QPointF(100, 100));
    m_fixture->screens.setScreens(
        {{.frame = first, .visibleFrame = first}, {.frame = second, .visibleFrame = second}});
    QCOMPARE(m_fixture->windows.frame(), QRectF(2350, 10, 440, 620));
}

void PanelWindowTest::toggles()
{
    panel().togglePanel();
    QVERIFY(panel().isShown());
    model().requestField(Field::Search);
    model().selection()->select(addNote(u"tea"_s).id());
    panel().togglePanel();
    QVERIFY(!panel().isShown());
    QVERIFY(m_fixture->application.isHidden());
    QVERIFY(!model().selection()->selected());
    panel().togglePanel();
    QVERIFY(panel().isShown());
    QVERIFY(QTest::qWaitForWindowActive(&window()));
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    // What its window manager closes is only hidden.
    window().close();
    QVERIFY(m_fixture->application.isHidden());
    panel().showPanel();
    QVERIFY(panel().isShown());
}

void PanelWindowTest::fadesOnlyWhereThatIsWanted_data()
{
    QTest::addColumn<bool>("isComposited");
    QTest::addColumn<bool>("reducesMotion");
    QTest::addColumn<bool>("fades");
    QTest::newRow("composited") << true << false << true;
    QTest::newRow("no compositor") << false << false << false;
    QTest::newRow("motion not wanted") << true << true << false;
}

void PanelWindowTest::fadesOnlyWhereThatIsWanted()
{
    QFETCH(bool, isComposited);
    QFETCH(bool, reducesMotion);
    m_fixture->windows.setComposited(isComposited);
    m_fixture->appearance.setReduceMotion(reducesMotion);
    panel().showPanel();
    QTEST(window().opacity() < 1, "fades");
    panel().showPanel();
    QTRY_COMPARE(window().opacity(), 1.0);
}

void PanelWindowTest::anotherApplicationTakesNothingAway()
{
    Note &note = addNote(u"tea"_s);
    // The field that was written in has the keyboard when the panel comes back.
    show();
    model().requestField(Field::Composer);
    type(u"half a th"_s);
    m_fixture->application.resignActive();
    QVERIFY(!panel().isShown());
    show();
    QCOMPARE(model().keyboard()->activeField(), Field::Composer);
    type(u"ought"_s);
    QCOMPARE(model().draft(), u"half a thought"_s);

    // And so has the text of the open note.
    model().requestField(Field::None);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    type(u"!"_s);
    m_fixture->application.resignActive();
    QVERIFY(!store().hasPendingChanges());
    show();
    QCOMPARE(model().openNote()->id(), note.id());
    QTRY_VERIFY(model().keyboard()->isEditing());
    type(u"?"_s);
    QCOMPARE(note.text(), u"tea!?"_s);
    // Nothing is kept of a note that is left empty.
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Backspace);
    m_fixture->application.resignActive();
    QVERIFY(store().notes().isEmpty());
}

QTEST_MAIN(PanelWindowTest)
#include "tst_panelwindow.moc"
