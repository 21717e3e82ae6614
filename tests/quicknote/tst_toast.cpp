// SPDX-License-Identifier: MIT
#include "../components/memorydesktop.h"
#include "quicknote/toast.h"

#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

class ToastTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void standsAboveTheBottom();
    void secondNoticeKeepsItsFullTime_data();
    void secondNoticeKeepsItsFullTime();
    void noticeDuringTheFadeOutStays();
    void goingAwayWhileShownIsHarmless();

private:
    [[nodiscard]] QQuickView &window() { return m_toast->window(); }

    std::unique_ptr<MemoryDesktop> m_desktop;
    std::unique_ptr<Toast> m_toast;
};

void ToastTest::init()
{
    m_desktop = std::make_unique<MemoryDesktop>();
    m_desktop->windows.setComposited(true);
    m_toast =
        std::make_unique<Toast>(m_desktop->engine, m_desktop->screens, m_desktop->windows, m_desktop->clock);
}

void ToastTest::cleanup()
{
    m_toast.reset();
    m_desktop->clock.advance(1min);
}

void ToastTest::standsAboveTheBottom()
{
    const QRectF frame(0, 0, 1600, 1000);
    m_desktop->screens.setScreens({{.frame = frame, .visibleFrame = frame.adjusted(0, 40, 0, 0)}});
    m_toast->show(u"Saved to Vesk"_s, u"checkmark.circle.fill"_s);
    QVERIFY(window().isVisible());
    QCOMPARE(window().title(), u"Saved to Vesk"_s);
    const QRectF shortNotice = m_desktop->windows.frame();
    QCOMPARE(shortNotice.center().x(), 800);
    QCOMPARE(shortNotice.y(), 100);

    m_toast->show(u"Added to “A note with a longer title”"_s, u"text.append"_s);
    QVERIFY(m_desktop->windows.frame().width() > shortNotice.width());
    QCOMPARE(m_desktop->windows.frame().center().x(), 800);

    // That screen is removed, and a smaller one is left.
    const QRectF left(0, 0, 800, 600);
    m_desktop->screens.setScreens({{.frame = left, .visibleFrame = left}});
    QCOMPARE(m_desktop->windows.frame().center().x(), 400);
    QCOMPARE(m_desktop->windows.frame().y(), 60);
}

void ToastTest::secondNoticeKeepsItsFullTime_data()
{
    QTest::addColumn<bool>("isComposited");
    QTest::newRow("composited, with the fade-out") << true;
    QTest::newRow("not composited") << false;
}

void ToastTest::secondNoticeKeepsItsFullTime()
{
    QFETCH(bool, isComposited);
    m_desktop->windows.setComposited(isComposited);
    m_toast->show(u"First"_s, u"checkmark.circle.fill"_s);
    m_desktop->clock.advance(1000ms);
    m_toast->show(u"Second"_s, u"checkmark.circle.fill"_s);
    QCOMPARE(window().title(), u"Second"_s);
    m_desktop->clock.advance(1399ms);
    QVERIFY(window().isVisible());
    m_desktop->clock.advance(1ms);
    QCOMPARE(window().isVisible(), isComposited);
    QTRY_VERIFY(!window().isVisible());
}

void ToastTest::noticeDuringTheFadeOutStays()
{
    m_toast->show(u"First"_s, u"checkmark.circle.fill"_s);
    m_desktop->clock.advance(1500ms);
    m_toast->show(u"Second"_s, u"checkmark.circle.fill"_s);
    m_desktop->clock.advance(1399ms);
    QVERIFY(window().isVisible());
    QTRY_COMPARE(window().opacity(), 1.0);
}

void ToastTest::goingAwayWhileShownIsHarmless()
{
    m_toast->show(u"First"_s, u"checkmark.circle.fill"_s);
    m_toast.reset();
    m_desktop->clock.advance(2s);
    QCOMPARE(m_desktop->clock.sleeperCount(), 0);
}

QTEST_MAIN(ToastTest)
#include "tst_toast.moc"
