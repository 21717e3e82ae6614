// SPDX-License-Identifier: MIT
#include "paneltest.h"

using namespace Qt::StringLiterals;
using namespace vesk;

/// The panel's window as the user sees it: where it opens, in which state, and when it disappears.
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
    void upperEdgeIsDragged_data();
    void upperEdgeIsDragged();
    void heightIsRemembered();

private:
    /// Presses the upper edge, moves the mouse up by this much, and releases it.
    void dragEdge(int up);
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

    // When the screens change, it stays on its own screen rather than moving to the pointer's.
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
    // If the window manager closes it, it is only hidden.
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
    // The field that had the focus has it again when the panel returns.
    show();
    model().requestField(Field::Composer);
    type(u"half a th"_s);
    m_fixture->application.resignActive();
    QVERIFY(!panel().isShown());
    show();
    QCOMPARE(model().keyboard()->activeField(), Field::Composer);
    type(u"ought"_s);
    QCOMPARE(model().draft(), u"half a thought"_s);

    // And so does the text of the open note.
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
    // A note that is left empty is not kept.
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Backspace);
    m_fixture->application.resignActive();
    QVERIFY(store().notes().isEmpty());
}

void PanelWindowTest::dragEdge(int up)
{
    const QPoint start = window().mapToGlobal(QPoint(220, 4));
    const auto send = [&](QEvent::Type type, int moved, Qt::MouseButton button, Qt::MouseButtons held) {
        const QPoint at = start - QPoint(0, moved);
        QMouseEvent event(type, window().mapFromGlobal(at), at, button, held, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &event);
    };
    send(QEvent::MouseButtonPress, 0, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::MouseMove, up / 2, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseMove, up, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, up, Qt::LeftButton, Qt::NoButton);
    // Later movement is not part of the drag.
    send(QEvent::MouseMove, up + 50, Qt::NoButton, Qt::NoButton);
}

void PanelWindowTest::upperEdgeIsDragged_data()
{
    QTest::addColumn<int>("up");
    QTest::addColumn<qreal>("height");
    QTest::newRow("higher") << 100 << 720.0;
    QTest::newRow("lower") << -150 << 470.0;
    QTest::newRow("not below the minimum") << -500 << 420.0;
    QTest::newRow("not above the screen") << 900 << 980.0;
}

void PanelWindowTest::upperEdgeIsDragged()
{
    QFETCH(int, up);
    const QRectF screen(0, 0, 1600, 1000);
    m_fixture->screens.setScreens({{.frame = screen, .visibleFrame = screen}});
    show();
    QCOMPARE(m_fixture->windows.frame().height(), 620.0);
    dragEdge(up);
    QTEST(m_fixture->windows.frame().height(), "height");
    // Only the upper edge has moved.
    QCOMPARE(m_fixture->windows.frame().topLeft(), QPointF(1150, 10));
    QCOMPARE(m_fixture->windows.frame().width(), 440.0);
}

void PanelWindowTest::heightIsRemembered()
{
    const QRectF large(0, 0, 1600, 1000);
    const QRectF small(0, 0, 1024, 600);
    m_fixture->screens.setScreens({{.frame = large, .visibleFrame = large}});
    show();
    dragEdge(200);
    QCOMPARE(m_fixture->windows.frame().height(), 820.0);
    // On a smaller screen it is lower, and on the larger one it has its height again.
    m_fixture->screens.setScreens({{.frame = small, .visibleFrame = small}});
    QCOMPARE(m_fixture->windows.frame(), QRectF(574, 10, 440, 580));
    m_fixture->screens.setScreens({{.frame = large, .visibleFrame = large}});
    QCOMPARE(m_fixture->windows.frame().height(), 820.0);
    // The next run remembers it.
    PanelModel next(store(), m_fixture->clock, m_fixture->defaults, m_fixture->application,
                    m_fixture->accessibility);
    const PanelWindow again(m_fixture->engine, next, m_fixture->application, m_fixture->screens,
                            m_fixture->windows);
    QCOMPARE(next.height()->wanted(), 820.0);
}

QTEST_MAIN(PanelWindowTest)
#include "tst_panelwindow.moc"
