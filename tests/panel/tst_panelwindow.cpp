// SPDX-License-Identifier: MIT
#include "panelfixture.h"

#include <QAccessible>
#include <QQuickItem>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace vesk;

/// The panel's window as the user meets it: where it comes up, in which state, when it goes.
class PanelWindowTest : public QObject
{
    Q_OBJECT

public:
    static void initMain() { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<PanelFixture>(); }
    void cleanup() { m_fixture.reset(); }
    void comesUpOnTheScreenUnderThePointer();
    void toggles();
    void closingOnlyHides();
    void requestForAFieldBringsItUp();
    void fadesOnlyWhereThatIsWanted_data();
    void fadesOnlyWhereThatIsWanted();
    void bannerFollowsTrust();

private:
    /// The item that a screen reader knows under this name; null if there is none on screen.
    [[nodiscard]] QQuickItem *find(const QString &name) const;

    std::unique_ptr<PanelFixture> m_fixture;
};

QQuickItem *PanelWindowTest::find(const QString &name) const
{
    QList<QQuickItem *> items{m_fixture->panel.window().contentItem()};
    while (!items.isEmpty()) {
        QQuickItem *item = items.takeLast();
        if (!item->isVisible())
            continue;
        QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(item);
        if (accessible != nullptr && accessible->text(QAccessible::Name) == name)
            return item;
        items += item->childItems();
    }
    return nullptr;
}

void PanelWindowTest::comesUpOnTheScreenUnderThePointer()
{
    const QRectF first(0, 0, 1600, 1000);
    const QRectF second(1600, 0, 1200, 800);
    m_fixture->screens.setScreens({{.frame = first, .visibleFrame = first},
                                   {.frame = second, .visibleFrame = second.adjusted(0, 40, 0, 0)}});
    m_fixture->screens.setMouseLocation(QPointF(2000, 400));
    m_fixture->model.setSearch(u"left over"_s);
    m_fixture->panel.showPanel();
    QCOMPARE(m_fixture->windows.frame(), QRectF(2350, 50, 440, 620));
    QCOMPARE(m_fixture->panel.window().title(), u"Vesk"_s);
    QCOMPARE(m_fixture->model.search(), QString());
    QCOMPARE(m_fixture->application.activatedWindow(), &m_fixture->panel.window());

    // A change of the screens leaves it on its own, not on the pointer's.
    m_fixture->screens.setMouseLocation(QPointF(100, 100));
    m_fixture->screens.setScreens(
        {{.frame = first, .visibleFrame = first}, {.frame = second, .visibleFrame = second}});
    QCOMPARE(m_fixture->windows.frame(), QRectF(2350, 10, 440, 620));
}

void PanelWindowTest::toggles()
{
    m_fixture->panel.togglePanel();
    QVERIFY(m_fixture->panel.isShown());
    m_fixture->model.requestField(PanelModel::Field::Search);
    m_fixture->model.selection()->select(m_fixture->addNote(u"tea"_s).id());
    m_fixture->panel.togglePanel();
    QVERIFY(!m_fixture->panel.isShown());
    QVERIFY(m_fixture->application.isHidden());
    QVERIFY(!m_fixture->model.selection()->selected());
    m_fixture->panel.togglePanel();
    QVERIFY(m_fixture->panel.isShown());
    QVERIFY(QTest::qWaitForWindowActive(&m_fixture->panel.window()));
    QCOMPARE(m_fixture->model.keyboard()->activeField(), PanelModel::Field::None);
}

void PanelWindowTest::closingOnlyHides()
{
    m_fixture->panel.showPanel();
    m_fixture->panel.window().close();
    QVERIFY(m_fixture->application.isHidden());
    m_fixture->panel.showPanel();
    QVERIFY(m_fixture->panel.isShown());
}

void PanelWindowTest::requestForAFieldBringsItUp()
{
    m_fixture->model.requestField(PanelModel::Field::None);
    QVERIFY(!m_fixture->panel.isShown());
    m_fixture->model.requestField(PanelModel::Field::Composer);
    QVERIFY(m_fixture->panel.isShown());
    QVERIFY(QTest::qWaitForWindowActive(&m_fixture->panel.window()));
    m_fixture->type(u"a"_s);
    QCOMPARE(m_fixture->model.draft(), u"a"_s);
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
    m_fixture->panel.showPanel();
    QTEST(m_fixture->panel.window().opacity() < 1, "fades");
    m_fixture->panel.showPanel();
    QTRY_COMPARE(m_fixture->panel.window().opacity(), 1.0);
}

void PanelWindowTest::bannerFollowsTrust()
{
    m_fixture->appearance.setReduceMotion(true);
    m_fixture->accessibility.setTrusted(false);
    m_fixture->panel.showPanel();
    QVERIFY(QTest::qWaitForWindowExposed(&m_fixture->panel.window()));
    QQuickItem *button = find(u"Open Settings"_s);
    QVERIFY(button);
    QTest::mouseClick(&m_fixture->panel.window(), Qt::LeftButton, {},
                      button->mapToScene(QPointF(20, 12)).toPoint());
    QCOMPARE(m_fixture->accessibility.askCount(), 1);
    m_fixture->accessibility.setTrusted(true);
    QVERIFY(!find(u"Open Settings"_s));
}

QTEST_MAIN(PanelWindowTest)
#include "tst_panelwindow.moc"
