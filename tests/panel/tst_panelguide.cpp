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
    [[nodiscard]] QQuickItem *guide() const { return find(window().contentItem(), "GuideView_QMLTYPE"); }
    [[nodiscard]] static QQuickItem *find(QQuickItem *from, const QByteArray &type);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(&window(), key, modifiers);
    }
    void show() const
    {
        m_fixture->panel.showPanel();
        QVERIFY(QTest::qWaitForWindowActive(&window()));
    }

    std::unique_ptr<PanelFixture> m_fixture;
};

QQuickItem *PanelGuideTest::find(QQuickItem *from, const QByteArray &type)
{
    if (QByteArray(from->metaObject()->className()).startsWith(type))
        return from;
    const QList<QQuickItem *> children = from->childItems();
    for (QQuickItem *child : children) {
        if (QQuickItem *found = find(child, type))
            return found;
    }
    return nullptr;
}

void PanelGuideTest::init()
{
    m_fixture = std::make_unique<PanelFixture>();
    m_fixture->appearance.setReduceMotion(true);
    m_fixture->defaults.setBool(false, u"hasSeenGuide"_s);
    m_fixture->addNote(u"one"_s);
}

void PanelGuideTest::firstRunShowsIt()
{
    show();
    QVERIFY(guide());
    press(Qt::Key_Escape);
    QVERIFY2(!guide() && m_fixture->panel.isShown(), "Escape is for the guide alone.");
    press(Qt::Key_Down);
    QVERIFY2(!model().selection()->cardId().isEmpty(), "The list has the keyboard again.");
    m_fixture->panel.togglePanel();
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
    const QQuickItem *card = find(window().contentItem(), "NoteCard_QMLTYPE");
    QVERIFY(card);
    QTest::mouseClick(&window(), Qt::LeftButton, {},
                      card->mapToScene(card->boundingRect().center()).toPoint());
    QCOMPARE(model().selection()->cardId(), QString());
    QCOMPARE(model().openNote()->cardId(), QString());
    QCOMPARE(model().keyboard()->activeField(), Field::None);
    QCOMPARE(m_fixture->store->notes().count(), 1);
    // Going away and coming back does not change who has the keyboard.
    m_fixture->panel.togglePanel();
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
    QTest::keyClick(&window(), 'x');
    press(Qt::Key_Escape);
    QCOMPARE(model().keyboard()->activeField(), Field::Search);
    QTest::keyClick(&window(), 'o');
    QCOMPARE(model().search(), u"o"_s);
}

void PanelGuideTest::fieldComesBeforeIt()
{
    show();
    QVERIFY(guide());
    model().requestField(Field::Composer);
    QTest::keyClick(&window(), 'm');
    QCOMPARE(model().draft(), u"m"_s);
    QVERIFY(!guide());
    // It was not dismissed.
    m_fixture->panel.togglePanel();
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
