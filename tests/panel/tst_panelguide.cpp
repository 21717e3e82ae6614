// SPDX-License-Identifier: MIT
#include "paneltest.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vesk;

/// The guide above the panel's real view, on the first run and later.
class PanelGuideTest : public PanelTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstRunShowsIt();
    void panelIsOutOfReach();
    void keyboardGoesBackToWhereItWas();
    void fieldComesBeforeIt();
    void fitsIntoALowPanel();

private:
    /// Null if it is not shown.
    [[nodiscard]] QQuickItem *guide() const { return shown("GuideView").value(0); }
};

void PanelGuideTest::init()
{
    PanelTest::init();
    m_fixture->defaults.setBool(false, u"hasSeenGuide"_s);
    addNote(u"one"_s);
}

void PanelGuideTest::firstRunShowsIt()
{
    show();
    QVERIFY(guide());
    press(Qt::Key_Escape);
    QVERIFY2(!guide() && panel().isShown(), "Escape is for the guide alone.");
    press(Qt::Key_Down);
    QVERIFY2(!model().selection()->cardId().isEmpty(), "The list has the keyboard again.");
    panel().togglePanel();
    show();
    QVERIFY(!guide());
    Q_EMIT model().menu()->guideRequested();
    QVERIFY(guide() && guide()->hasActiveFocus());
}

void PanelGuideTest::panelIsOutOfReach()
{
    show();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_A})
        press(key);
    press(Qt::Key_F, Qt::ControlModifier);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    for (int i = 0; i < 4; ++i) {
        press(Qt::Key_Tab);
        QVERIFY2(guide()->isAncestorOf(window().activeFocusItem()), "Tab leaves the guide.");
    }
    click(*shown("NoteCard").at(0));
    QCOMPARE(model().selection()->cardId(), QString());
    QCOMPARE(model().openNote()->cardId(), QString());
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    QCOMPARE(store().notes().count(), 1);
    // Hiding and showing the panel does not move the focus.
    panel().togglePanel();
    show();
    QVERIFY(guide() && guide()->hasActiveFocus());
}

void PanelGuideTest::keyboardGoesBackToWhereItWas()
{
    m_fixture->defaults.setBool(true, u"hasSeenGuide"_s);
    show();
    press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(model().keyboard()->activeField(), Field::Search);
    Q_EMIT model().menu()->guideRequested();
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    type(u"x"_s);
    press(Qt::Key_Escape);
    QCOMPARE(model().keyboard()->activeField(), Field::Search);
    type(u"o"_s);
    QCOMPARE(model().search(), u"o"_s);
}

void PanelGuideTest::fieldComesBeforeIt()
{
    show();
    QVERIFY(guide());
    model().requestField(Field::Composer);
    type(u"m"_s);
    QCOMPARE(model().draft(), u"m"_s);
    QVERIFY(!guide());
    // It has not been dismissed.
    panel().togglePanel();
    show();
    QVERIFY(guide());
}

void PanelGuideTest::fitsIntoALowPanel()
{
    show();
    const QRectF whole(QPointF(), window().size());
    QCOMPARE(guide()->size(), QSizeF(420, 600));
    QVERIFY(whole.contains(guide()->mapRectToScene(guide()->boundingRect())));
    window().resize(window().width(), 400);
    QTRY_COMPARE(guide()->height(), 380.0);
    press(Qt::Key_End);
    press(Qt::Key_Tab);
    QQuickItem *button = window().activeFocusItem();
    QVERIFY(QRectF(0, 0, window().width(), 400).contains(button->mapRectToScene(button->boundingRect())));
    press(Qt::Key_Return);
    QVERIFY(!guide());
}

QTEST_MAIN(PanelGuideTest)
#include "tst_panelguide.moc"
