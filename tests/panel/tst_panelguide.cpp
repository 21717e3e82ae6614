// SPDX-License-Identifier: MIT
#include "panelfixture.h"

#include <QQuickItem>
#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace vesk;

using Field = PanelModel::Field;

/// The guide over the panel's real view, on the first run and later.
class PanelGuideTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

private Q_SLOTS:
    void init();
    void cleanup() { m_fixture.reset(); }
    void firstRunShowsIt();
    void panelIsOutOfReach();
    void keyboardGoesBackToWhereItWas();
    void fieldComesBeforeIt();
    void fitsIntoALowPanel();

private:
    [[nodiscard]] QQuickWindow &window() const { return m_fixture->panel.window(); }
    [[nodiscard]] PanelModel &model() const { return m_fixture->model; }
    /// Null if it is not shown.
    [[nodiscard]] QQuickItem *guide() const { return m_fixture->shown("GuideView").value(0); }

    std::unique_ptr<PanelFixture> m_fixture;
};

void PanelGuideTest::init()
{
    m_fixture = std::make_unique<PanelFixture>();
    m_fixture->appearance.setReduceMotion(true);
    m_fixture->defaults.setBool(false, u"hasSeenGuide"_s);
    m_fixture->addNote(u"one"_s);
}

void PanelGuideTest::firstRunShowsIt()
{
    m_fixture->show();
    QVERIFY(guide());
    m_fixture->press(Qt::Key_Escape);
    QVERIFY2(!guide() && m_fixture->panel.isShown(), "Escape is for the guide alone.");
    m_fixture->press(Qt::Key_Down);
    QVERIFY2(!model().selection()->cardId().isEmpty(), "The list has the keyboard again.");
    m_fixture->panel.togglePanel();
    m_fixture->show();
    QVERIFY(!guide());
    Q_EMIT model().menu()->guideRequested();
    QVERIFY(guide() && guide()->hasActiveFocus());
}

void PanelGuideTest::panelIsOutOfReach()
{
    m_fixture->show();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Return, Qt::Key_A})
        m_fixture->press(key);
    m_fixture->press(Qt::Key_F, Qt::ControlModifier);
    m_fixture->press(Qt::Key_Backspace, Qt::ControlModifier);
    for (int i = 0; i < 4; ++i) {
        m_fixture->press(Qt::Key_Tab);
        QVERIFY2(guide()->isAncestorOf(window().activeFocusItem()), "Tab leaves the guide.");
    }
    m_fixture->click(*m_fixture->shown("NoteCard").at(0));
    QCOMPARE(model().selection()->cardId(), QString());
    QCOMPARE(model().openNote()->cardId(), QString());
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    QCOMPARE(m_fixture->store->notes().count(), 1);
    // Going away and coming back does not change who has the keyboard.
    m_fixture->panel.togglePanel();
    m_fixture->show();
    QVERIFY(guide() && guide()->hasActiveFocus());
}

void PanelGuideTest::keyboardGoesBackToWhereItWas()
{
    m_fixture->defaults.setBool(true, u"hasSeenGuide"_s);
    m_fixture->show();
    m_fixture->press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(model().keyboard()->activeField(), Field::Search);
    Q_EMIT model().menu()->guideRequested();
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    m_fixture->type(u"x"_s);
    m_fixture->press(Qt::Key_Escape);
    QCOMPARE(model().keyboard()->activeField(), Field::Search);
    m_fixture->type(u"o"_s);
    QCOMPARE(model().search(), u"o"_s);
}

void PanelGuideTest::fieldComesBeforeIt()
{
    m_fixture->show();
    QVERIFY(guide());
    model().requestField(Field::Composer);
    m_fixture->type(u"m"_s);
    QCOMPARE(model().draft(), u"m"_s);
    QVERIFY(!guide());
    // It was not dismissed.
    m_fixture->panel.togglePanel();
    m_fixture->show();
    QVERIFY(guide());
}

void PanelGuideTest::fitsIntoALowPanel()
{
    m_fixture->show();
    const QRectF whole(QPointF(), window().size());
    QCOMPARE(guide()->size(), QSizeF(420, 600));
    QVERIFY(whole.contains(guide()->mapRectToScene(guide()->boundingRect())));
    window().resize(window().width(), 400);
    QTRY_COMPARE(guide()->height(), 380.0);
    m_fixture->press(Qt::Key_End);
    m_fixture->press(Qt::Key_Tab);
    QQuickItem *button = window().activeFocusItem();
    QVERIFY(QRectF(0, 0, window().width(), 400).contains(button->mapRectToScene(button->boundingRect())));
    m_fixture->press(Qt::Key_Return);
    QVERIFY(!guide());
}

QTEST_MAIN(PanelGuideTest)
#include "tst_panelguide.moc"
