// SPDX-License-Identifier: MIT
#include "x11test.h"

#include "input/doubleshiftmonitor.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/x11eventtap.h"

#include <QSignalSpy>

#include <functional>
#include <xcb/xtest.h>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Tapping Shift twice on a real keyboard, with all sorts of events in between.
class TestEventTap : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void keysBecomeTaps_data();
    void keysBecomeTaps();
};

/// Letters stand for keys: s and S, left Shift down and up; r and R, right Shift; T, a release of Shift
/// without a press; c and C, Control; k and n, Caps Lock and Num Lock tapped; x, a letter; b, a mouse button;
/// w, the wheel; g and G, another client grabs and releases the keyboard; p and P, the user withdraws and
/// gives consent.
void TestEventTap::keysBecomeTaps_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("expected");
    QTest::newRow("two taps") << u"sSsS"_s << 1;
    QTest::newRow("left, then right") << u"sSrR"_s << 1;
    QTest::newRow("both at once, twice") << u"srSRrsRS"_s << 1;
    QTest::newRow("keys that go up twice") << u"TsSTRsSTT"_s << 1;
    QTest::newRow("another client has the keyboard") << u"gsSsSG"_s << 1;
    QTest::newRow("another client takes the keyboard between") << u"sSgGsS"_s << 1;
    QTest::newRow("Num Lock is on") << u"nsSsSn"_s << 1;
    QTest::newRow("Num Lock tapped between") << u"sSnsSn"_s << 0;
    QTest::newRow("Caps Lock is on") << u"ksSsSk"_s << 0;
    QTest::newRow("after Caps Lock") << u"kksSsS"_s << 1;
    QTest::newRow("a letter between") << u"sSxsS"_s << 0;
    QTest::newRow("a click between") << u"sSbsS"_s << 0;
    QTest::newRow("clicks with Shift") << u"sbSsbS"_s << 0;
    QTest::newRow("scrolling with Shift") << u"swSswS"_s << 0;
    QTest::newRow("Control is held") << u"csSsSC"_s << 0;
    QTest::newRow("no consent") << u"psSsSP"_s << 0;
    QTest::newRow("consent withdrawn while Control is held") << u"cpCPsSsS"_s << 1;
}

void TestEventTap::keysBecomeTaps()
{
    QFETCH(const QString, keys);
    QFETCH(const int, expected);
    RawInput input(*m_connection);
    X11EventTap tap(input);
    DoubleShiftMonitor monitor(tap);
    const QSignalSpy doubleShift(&monitor, &DoubleShiftMonitor::doubleShift);
    const QSignalSpy keyDown(&tap, &EventTap::keyDown);
    monitor.start();
    input.setListening(true);
    Keyboard &keyboard = m_desktop->keyboard();
    DisplayConnection &display = m_desktop->display();
    const auto click = [&display](quint8 button) {
        for (const quint8 type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
            xcb_test_fake_input(display.xcb(), type, button, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        xcb_flush(display.xcb());
    };
    const auto setListening = [&](bool isListening) {
        input.setListening(isListening);
        // The keys reach the server over another connection, so it must have processed this first.
        static_cast<void>(input.isCapsLocked());
    };
    static_cast<void>(input.isCapsLocked());
    const QHash<QChar, std::function<void()>> actions{
        {u's', [&] { keyboard.press(XK_Shift_L); }},
        {u'S', [&] { keyboard.release(XK_Shift_L); }},
        {u'r', [&] { keyboard.press(XK_Shift_R); }},
        {u'R', [&] { keyboard.release(XK_Shift_R); }},
        {u'T', [&] { keyboard.release(XK_Shift_L); }},
        {u'c', [&] { keyboard.press(XK_Control_L); }},
        {u'C', [&] { keyboard.release(XK_Control_L); }},
        {u'k', [&] { keyboard.tap({XK_Caps_Lock}, kFinger); }},
        {u'n', [&] { keyboard.tap({XK_Num_Lock}, kFinger); }},
        {u'x', [&] { keyboard.tap({XK_x}); }},
        {u'b', [&] { click(1); }},
        {u'w', [&] { click(5); }},
        {u'g', [&] { QVERIFY(keyboard.grab()); }},
        {u'G', [&] { keyboard.ungrab(); }},
        {u'p', [&] { setListening(false); }},
        {u'P', [&] { setListening(true); }},
    };
    for (const QChar key : keys) {
        actions.value(key)();
        // The state of Caps Lock is read when a key is received, so wait for each key before the next.
        static_cast<void>(display.atom("VESK_TEST"));
        QTest::qWait(2);
    }
    // The last key is received last.
    const qsizetype before = keyDown.count();
    keyboard.tap({XK_F5});
    QTRY_VERIFY(keyDown.count() > before);
    QCOMPARE(doubleShift.count(), expected);
}

DESKTOP_TEST_MAIN(TestEventTap)
#include "tst_eventtap.moc"
