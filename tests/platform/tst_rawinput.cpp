// SPDX-License-Identifier: MIT
#include "x11test.h"

#include "platform/x11/keystates.h"
#include "platform/x11/rawinput.h"
#include "platform/x11/servergrab.h"
#include "platform/x11/synthetickeys.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace vesk;

/// Which keys count as possibly having changed the selection.
class TestRawInput : public X11Test
{
    Q_OBJECT

private Q_SLOTS:
    void pressesThatMayChangeASelection_data();
    void pressesThatMayChangeASelection();
    void ownKeysAreNotReported();

private:
    /// Waits until everything that was sent has been received.
    void settle()
    {
        static_cast<void>(m_desktop->display().atom("VESK_TEST"));
        QTest::qWait(20);
    }
};

void TestRawInput::pressesThatMayChangeASelection_data()
{
    using Keys = QList<xcb_keysym_t>;
    QTest::addColumn<Keys>("keys");
    QTest::addColumn<bool>("isGrabbed");
    QTest::addColumn<bool>("counts");
    const auto row = [](const char *name, const Keys &keys, bool isGrabbed, bool counts) {
        QTest::newRow(name) << keys << isGrabbed << counts;
    };
    row("a letter", {XK_n}, false, true);
    row("Shift and an arrow", {XK_Shift_L, XK_Right}, false, true);
    row("Control-L", {XK_Control_L, XK_l}, false, true);
    row("Alt and an arrow", {XK_Alt_L, XK_Left}, false, true);
    row("modifiers alone", {XK_Super_L, XK_Alt_L, XK_Control_L, XK_Shift_L}, false, false);
    row("with Super", {XK_Super_L, XK_n}, false, false);
    row("with Control and Alt", {XK_Control_L, XK_Alt_L, XK_n}, false, false);
    row("a hot key with Control", {XK_Control_L, XK_n}, true, false);
    row("a hot key alone", {XK_n}, true, false);
}

void TestRawInput::pressesThatMayChangeASelection()
{
    QFETCH(const QList<xcb_keysym_t>, keys);
    QFETCH(const bool, isGrabbed);
    QFETCH(const bool, counts);
    RawInput input(*m_connection);
    input.setListening(true);
    static_cast<void>(input.isCapsLocked());
    m_desktop->keyboard().tap({XK_x}, kFinger);
    settle();
    const xcb_timestamp_t before = input.lastPress();
    QVERIFY(before != 0);
    const std::unique_ptr<DisplayConnection> desktop = DisplayConnection::open(m_desktop->displayName());
    if (isGrabbed) {
        constexpr xcb_keycode_t kN = 49 + 8;
        xcb_grab_key(desktop->xcb(), 0, desktop->root(), XCB_MOD_MASK_ANY, kN, XCB_GRAB_MODE_ASYNC,
                     XCB_GRAB_MODE_ASYNC);
        static_cast<void>(desktop->atom("VESK_TEST"));
    }
    // Released before anybody has received it.
    m_desktop->keyboard().tap(keys);
    settle();
    QCOMPARE(input.lastPress() != before, counts);
    // The original rule applies again once the key is released.
    m_desktop->keyboard().tap({XK_x}, kFinger);
    settle();
    QVERIFY(input.lastPress() != before);
}

/// Other programs' keys that go through the same device are reported.
void TestRawInput::ownKeysAreNotReported()
{
    RawInput input(*m_connection);
    SyntheticKeys synthetic(*m_connection, input);
    input.setListening(true);
    static_cast<void>(input.isCapsLocked());
    const QSignalSpy pressed(&input, &RawInput::keyPressed);
    const QSignalSpy released(&input, &RawInput::keyReleased);
    Keyboard &keyboard = m_desktop->keyboard();
    keyboard.press(XK_Alt_L);
    {
        const ServerGrab grab(*m_connection);
        QVERIFY(synthetic.play({XK_Control_L, XK_c}));
    }
    keyboard.tap({XK_x}, kFinger);
    keyboard.release(XK_Alt_L);
    settle();
    QCOMPARE(pressed.count(), 2);
    QCOMPARE(released.count(), 2);
    QVERIFY(keysDown(*m_connection).none());
}

DESKTOP_TEST_MAIN(TestRawInput)
#include "tst_rawinput.moc"
