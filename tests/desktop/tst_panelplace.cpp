// SPDX-License-Identifier: MIT
#include "desktop/monitors.h"
#include "desktop/plainwindow.h"
#include "desktop/vesktest.h"

#include <tuple>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Where the panel opens on a real desktop, what it is above, and when it disappears.
class TestPanelPlace : public VeskTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void docksKeepTheirRoom();
    void standsInItsCornerAtEveryScale_data();
    void standsInItsCornerAtEveryScale();
    void unpluggedMonitorGivesThePanelBack();
    void standsAboveAFullScreenWindow();
    void comesUpOnTheDesktopInUse();
    void isInNoTaskBar();
    void isCutOnlyWithoutACompositor();
    void goesWhenAnotherApplicationIsUsed();
    void heightIsDraggedAndRemembered();
    void fieldKeepsTheKeyboard_data();
    void fieldKeepsTheKeyboard();

private:
    /// Presses the key as a finger does: not again at the very moment of its release. Without permission to
    /// observe keys, Vesk checks every 20 ms whether the key is still down.
    void toggle()
    {
        QTest::qWait(static_cast<int>(3 * kFinger.count()));
        m_desktop->keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, kFinger);
    }
    [[nodiscard]] std::optional<Window> panel() const { return m_desktop->windows().findViewable(kPanel); }
    /// Waits until the panel is in this corner, inset by 10 points of `ratio` pixels; returns whether it is.
    [[nodiscard]] bool waitInCorner(QPoint corner, qreal ratio = 1);
    [[nodiscard]] QString where() const;

    std::unique_ptr<Monitors> m_monitors;
};

void TestPanelPlace::init()
{
    VeskTest::init();
    QVERIFY(m_desktop);
    m_monitors = std::make_unique<Monitors>(m_desktop->display());
    QVERIFY(startVesk());
}

void TestPanelPlace::cleanup()
{
    m_vesk.reset();
    m_monitors.reset();
    VeskTest::cleanup();
}

bool TestPanelPlace::waitInCorner(QPoint corner, qreal ratio)
{
    return m_desktop->display().waitUntil(kBound, [&] {
        const std::optional<Window> found = panel();
        if (!found)
            return false;
        // Half pixels are rounded.
        const QPoint off = found->geometry.bottomRight() + QPoint(1, 1) + QPoint(10, 10) * ratio - corner;
        return off.manhattanLength() <= (ratio > 1 ? 2 : 0) && found->geometry.width() == qRound(440 * ratio);
    });
}

QString TestPanelPlace::where() const
{
    const std::optional<Window> found = panel();
    if (!found)
        return u"not shown"_s;
    const QRect &area = found->geometry;
    return u"%1,%2 %3x%4"_s.arg(area.x()).arg(area.y()).arg(area.width()).arg(area.height());
}

void TestPanelPlace::docksKeepTheirRoom()
{
    {
        PlainWindow bar(m_desktop->display(), u"Dock"_s, QRect(0, 960, 1600, 40));
        bar.setStrut({0, 0, 0, 40, 0, 0, 0, 0, 0, 0, 0, 1599});
        bar.show();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(u"Dock"_s, kBound));
        toggle();
        QVERIFY2(waitInCorner(QPoint(1600, 960)), qPrintable(where()));
    }
    // When the dock disappears, the panel uses its space.
    QVERIFY2(waitInCorner(QPoint(1600, 1000)), qPrintable(where()));
}

void TestPanelPlace::standsInItsCornerAtEveryScale_data()
{
    QTest::addColumn<QString>("factors");
    QTest::addColumn<qreal>("left");
    QTest::addColumn<qreal>("right");

    QTest::newRow("1") << u"1;1"_s << 1.0 << 1.0;
    QTest::newRow("1.5") << u"1.5;1.5"_s << 1.5 << 1.5;
    QTest::newRow("1 and 2") << u"1;2"_s << 1.0 << 2.0;
    QTest::newRow("2 and 1") << u"2;1"_s << 2.0 << 1.0;
}

void TestPanelPlace::standsInItsCornerAtEveryScale()
{
    QFETCH(QString, factors);
    QFETCH(qreal, left);
    QFETCH(qreal, right);
    m_monitors->set({QRect(0, 0, 700, 900), QRect(700, 100, 900, 700)});
    m_vesk.reset();
    m_desktop->setVariable(u"QT_SCREEN_SCALE_FACTORS"_s, factors);
    QVERIFY(startVesk());
    // To the right, to the left, and to the right again: a different scale each time.
    for (int turn = 0; turn < 3; ++turn) {
        const bool isRight = turn % 2 == 0;
        m_desktop->pointer().moveTo(isRight ? QPoint(1000, 400) : QPoint(100, 400));
        toggle();
        QVERIFY2(waitInCorner(isRight ? QPoint(1600, 800) : QPoint(700, 900), isRight ? right : left),
                 qPrintable(where()));
        toggle();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    }
}

void TestPanelPlace::unpluggedMonitorGivesThePanelBack()
{
    const QRect left(0, 0, 800, 1000);
    const QRect right(800, 0, 800, 700);
    m_monitors->set({left, right});
    m_desktop->pointer().moveTo(QPoint(1000, 400));
    toggle();
    QVERIFY2(waitInCorner(QPoint(1600, 700)), qPrintable(where()));
    m_monitors->set({left});
    QVERIFY2(waitInCorner(QPoint(800, 1000)), qPrintable(where()));
    // Plugged in again while the panel is hidden. Nothing shows when Vesk has noticed, so repeat.
    m_desktop->pointer().moveTo(QPoint(1000, 400));
    toggle();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    m_monitors->set({left, right});
    bool isThere = false;
    for (int attempt = 0; attempt < 5 && !isThere; ++attempt) {
        toggle();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
        isThere = panel()->geometry.bottomRight() + QPoint(11, 11) == QPoint(1600, 700);
        toggle();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    }
    QVERIFY(isThere);
}

void TestPanelPlace::standsAboveAFullScreenWindow()
{
    PlainWindow film(m_desktop->display(), u"Film"_s, QRect(0, 0, 1600, 1000));
    film.setFullScreen();
    film.show();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(u"Film"_s, kBound));
    m_desktop->windows().activate(film.window());
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(film.window(), kBound));
    toggle();
    QVERIFY2(waitInCorner(QPoint(1600, 1000)), qPrintable(where()));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel(), kBound));
    // The stack is listed from bottom to top.
    QVERIFY(m_desktop->display().waitUntil(kBound, [&] {
        const QList<xcb_window_t> stack = m_desktop->windows().stack();
        return stack.indexOf(panel()->id) > stack.indexOf(film.window().id);
    }));
}

void TestPanelPlace::comesUpOnTheDesktopInUse()
{
    constexpr quint32 kSecond = 1;
    VERIFY_ON(*m_desktop, m_desktop->windows().goToWorkspace(kSecond, kBound));
    toggle();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel(), kBound));
    QCOMPARE(m_desktop->windows().rootNumber("_NET_CURRENT_DESKTOP"), kSecond);
}

void TestPanelPlace::isInNoTaskBar()
{
    for (int round = 0; round < 2; ++round) {
        toggle();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
        VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel(), kBound));
        for (const char *state :
             {"_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER", "_NET_WM_STATE_ABOVE"})
            QVERIFY2(m_desktop->windows().hasState(*panel(), state), state);
        toggle();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    }
}

void TestPanelPlace::isCutOnlyWithoutACompositor()
{
    DisplayConnection &display = m_desktop->display();
    const auto compositorIs = [&display](xcb_window_t owner) {
        xcb_set_selection_owner(display.xcb(), owner, display.atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
        xcb_flush(display.xcb());
    };
    const auto isCut = [this] { return panel() && m_desktop->windows().isCut(*panel()); };
    toggle();
    VERIFY_ON(*m_desktop, display.waitUntil(kBound, isCut));
    // A compositor starts and exits while the panel is shown.
    compositorIs(display.window());
    VERIFY_ON(*m_desktop, display.waitUntil(kBound, [&] { return panel() && !isCut(); }));
    compositorIs(XCB_WINDOW_NONE);
    VERIFY_ON(*m_desktop, display.waitUntil(kBound, isCut));
    // And starts while it is hidden.
    toggle();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    compositorIs(display.window());
    toggle();
    VERIFY_ON(*m_desktop, display.waitUntil(kBound, [&] { return panel() && !isCut(); }));
}

void TestPanelPlace::goesWhenAnotherApplicationIsUsed()
{
    PlainWindow other(m_desktop->display(), u"Other"_s, QRect(10, 10, 300, 200));
    other.show();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(u"Other"_s, kBound));
    toggle();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(kPanel, kBound));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(*panel(), kBound));
    // The window manager may process the panel's earlier request after this, and activate it once more.
    VERIFY_ON(*m_desktop, m_desktop->display().waitUntil(kBound, [&] {
        m_desktop->windows().activate(other.window());
        return !panel();
    }));
    VERIFY_ON(*m_desktop, m_desktop->windows().waitActive(other.window(), kBound));
}

void TestPanelPlace::heightIsDraggedAndRemembered()
{
    toggle();
    QVERIFY2(waitInCorner(QPoint(1600, 1000)), qPrintable(where()));
    const auto waitHeight = [this](int height) {
        return m_desktop->display().waitUntil(
            kBound, [&] { return panel() && panel()->geometry.height() == height; });
    };
    QVERIFY2(waitHeight(620), qPrintable(where()));
    const QPoint edge = panel()->geometry.topLeft() + QPoint(220, 4);
    m_desktop->pointer().drag(edge, edge - QPoint(0, 130));
    QVERIFY2(waitHeight(750) && waitInCorner(QPoint(1600, 1000)), qPrintable(where()));
    // After hiding and showing it, and in the next run.
    toggle();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitGone(kPanel, kBound));
    toggle();
    QVERIFY2(waitHeight(750) && waitInCorner(QPoint(1600, 1000)), qPrintable(where()));
    QVERIFY(m_vesk->quit());
    QVERIFY(startVesk());
    toggle();
    QVERIFY2(waitHeight(750) && waitInCorner(QPoint(1600, 1000)), qPrintable(where()));
}

void TestPanelPlace::fieldKeepsTheKeyboard_data()
{
    QTest::addColumn<QString>("taker");
    for (const char *taker : {"a popup", "the quick-note box", "another application"})
        QTest::newRow(taker) << QString::fromLatin1(taker);
}

void TestPanelPlace::fieldKeepsTheKeyboard()
{
    QFETCH(QString, taker);
    DisplayConnection &display = m_desktop->display();
    toggle();
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    m_desktop->keyboard().tap({XK_Control_L, XK_n}, kFinger);
    m_desktop->keyboard().type(u"half a th"_s);
    if (taker == u"a popup") {
        // Like a window manager's switcher.
        const xcb_window_t popup = xcb_generate_id(display.xcb());
        const uint32_t unmanaged = 1;
        xcb_create_window(display.xcb(), XCB_COPY_FROM_PARENT, popup, display.root(), 10, 10, 100, 100, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                          &unmanaged);
        xcb_map_window(display.xcb(), popup);
        xcb_set_input_focus(display.xcb(), XCB_INPUT_FOCUS_PARENT, popup, XCB_CURRENT_TIME);
        xcb_flush(display.xcb());
        QTest::qWait(20);
        xcb_set_input_focus(display.xcb(), XCB_INPUT_FOCUS_PARENT, panel()->id, XCB_CURRENT_TIME);
        xcb_destroy_window(display.xcb(), popup);
        xcb_flush(display.xcb());
        // If the popup stayed long enough for the panel to hide, the panel reopens as it was. A second start
        // shows it in either case.
        VERIFY_ON(*m_desktop, display.waitUntil(kBound, [&] {
            const std::optional<Window> found = panel();
            if (!found)
                std::ignore = runToEnd(VirtualDesktop::veskProgram(), {});
            return found && m_desktop->windows().waitFocused(*found, std::chrono::milliseconds(500));
        }));
    } else if (taker == u"the quick-note box") {
        QVERIFY(runToEnd(VirtualDesktop::veskProgram(), {u"quick-note"_s}));
        VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kQuickNote, kBound));
        m_desktop->keyboard().tap({XK_Escape}, kFinger);
    } else {
        PlainWindow other(display, u"Other"_s, QRect(10, 10, 300, 200));
        other.show();
        VERIFY_ON(*m_desktop, m_desktop->windows().waitViewable(u"Other"_s, kBound));
        VERIFY_ON(*m_desktop, display.waitUntil(kBound, [&] {
            m_desktop->windows().activate(other.window());
            return !panel();
        }));
        toggle();
    }
    VERIFY_ON(*m_desktop, m_desktop->windows().waitFocused(kPanel, kBound));
    m_desktop->keyboard().type(u"ought"_s);
    m_desktop->keyboard().tap({XK_Return}, kFinger);
    VERIFY_ON(*m_desktop, waitNotes({u"half a thought"_s}));
}

DESKTOP_TEST_MAIN(TestPanelPlace)
#include "tst_panelplace.moc"
