// SPDX-License-Identifier: MIT
#include "input/doubleshiftmonitor.h"
#include "platform/memory/memorykeyboard.h"

#include <QHash>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Which keys count as Shift tapped twice. The keys are written as a string: s and S, Shift down and up; c
/// and C, Shift and Control down, then all up; k and K, Caps Lock turned on and off; l and L, Shift down and
/// up while it is on; x, a letter or a mouse button; w, the wheel; i, an interruption; . and _, a pause of
/// 100 ms and 1 ms.
class TestDoubleShiftMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void taps_data();
    void taps();
};

void TestDoubleShiftMonitor::taps_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<int>("expected");
    QTest::newRow("one tap") << u"s.S...."_s << 0;
    QTest::newRow("two quick taps") << u"s.S.s.S"_s << 1;
    QTest::newRow("releases 400 ms apart") << u"sS...s.S"_s << 1;
    QTest::newRow("releases 401 ms apart") << u"sS...s._S"_s << 0;
    QTest::newRow("first tap held long") << u"s..........S.sS"_s << 1;
    QTest::newRow("second tap held too long") << u"sSs.....S"_s << 0;
    QTest::newRow("slow second tap starts over") << u"sS....s.S.s.S"_s << 1;
    QTest::newRow("three quick taps") << u"sS.sS.sS"_s << 1;
    QTest::newRow("four quick taps") << u"sS.sS.sS.sS"_s << 2;
    QTest::newRow("a letter between") << u"sS.x.sS"_s << 0;
    QTest::newRow("a capital after a tap") << u"sS.sxS"_s << 0;
    QTest::newRow("a capital, then a tap") << u"sxS.sS"_s << 0;
    QTest::newRow("a capital, then two taps") << u"sxS.sS.sS"_s << 1;
    QTest::newRow("a letter, then two taps") << u"x.sS.sS"_s << 1;
    QTest::newRow("a capital with both Shifts, then a tap") << u"sxsS.sS"_s << 0;
    QTest::newRow("a letter with Control and Shift, then a tap") << u"cxs.S.sS"_s << 0;
    QTest::newRow("scrolling with Shift, then a tap") << u"swS.sS"_s << 0;
    QTest::newRow("Shift with Control after a tap") << u"sS.scC.sS"_s << 0;
    QTest::newRow("a tap, then Shift left over from a combination") << u"sS.cs.S"_s << 0;
    QTest::newRow("Shift left over from a combination, then a tap") << u"cs.S.sS"_s << 1;
    QTest::newRow("left Shift held, right Shift tapped") << u"ssS"_s << 0;
    QTest::newRow("Caps Lock is on") << u"k.lL.lL"_s << 0;
    QTest::newRow("Caps Lock between") << u"sS.kK.sS"_s << 0;
    QTest::newRow("Caps Lock goes off while Shift is held") << u"k.lsS.sS"_s << 1;
    QTest::newRow("clicks with Shift") << u"sxS.sxS"_s << 0;
    QTest::newRow("scrolling with Shift") << u"swS.swS"_s << 0;
    QTest::newRow("an interruption between") << u"sS.i.sS"_s << 0;
    QTest::newRow("an interruption while Shift is held") << u"sS.siS"_s << 0;
    QTest::newRow("release without a press") << u"S.S.sS"_s << 0;
}

void TestDoubleShiftMonitor::taps()
{
    QFETCH(const QString, keys);
    QFETCH(const int, expected);
    MemoryEventTap tap;
    DoubleShiftMonitor monitor(tap);
    const QSignalSpy doubleShift(&monitor, &DoubleShiftMonitor::doubleShift);
    monitor.start();
    std::chrono::milliseconds now{5};
    const auto hold = [&tap, &now](Qt::KeyboardModifiers held, bool isCapsLocked = false) {
        tap.setFlags({.held = held, .isCapsLocked = isCapsLocked, .time = now});
    };
    const QHash<QChar, std::function<void()>> actions{
        {u's', [&] { hold(Qt::ShiftModifier); }},
        {u'c', [&] { hold(Qt::ShiftModifier | Qt::ControlModifier); }},
        {u'S', [&] { hold(Qt::NoModifier); }},
        {u'C', [&] { hold(Qt::NoModifier); }},
        {u'k', [&] { hold(Qt::NoModifier, true); }},
        {u'K', [&] { hold(Qt::NoModifier); }},
        {u'l', [&] { hold(Qt::ShiftModifier, true); }},
        {u'L', [&] { hold(Qt::NoModifier, true); }},
        {u'x', [&] { tap.press(); }},
        {u'w', [&] { tap.turnWheel(); }},
        {u'i', [&] { Q_EMIT tap.interrupted(); }},
        {u'.', [&] { now += 100ms; }},
        {u'_', [&] { now += 1ms; }},
    };
    for (const QChar key : keys)
        actions.value(key)();
    QCOMPARE(doubleShift.count(), expected);
}

QTEST_GUILESS_MAIN(TestDoubleShiftMonitor)

#include "tst_doubleshiftmonitor.moc"
