// SPDX-License-Identifier: MIT
#include "input/doubleshiftmonitor.h"
#include "platform/memory/memoryclock.h"
#include "platform/memory/memorykeyboard.h"

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace vesk;

/// Which keys count as Shift tapped twice. The keys are written as a row of letters: s and S, Shift
/// down and up; c and C, Shift and Control down, then all up; x, a letter; . and _, 100 ms and
/// 1 ms that pass.
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
    QTest::newRow("slow second tap begins anew") << u"sS....s.S.s.S"_s << 1;
    QTest::newRow("three quick taps") << u"sS.sS.sS"_s << 1;
    QTest::newRow("four quick taps") << u"sS.sS.sS.sS"_s << 2;
    QTest::newRow("a letter between") << u"sS.x.sS"_s << 0;
    QTest::newRow("a capital after a tap") << u"sS.sxS"_s << 0;
    QTest::newRow("a capital, then a tap") << u"sxS.sS"_s << 1;
    QTest::newRow("Shift with Control after a tap") << u"sS.scC.sS"_s << 0;
    QTest::newRow("a tap, then Shift left over from a combination") << u"sS.cs.S"_s << 0;
    QTest::newRow("Shift left over from a combination, then a tap") << u"cs.S.sS"_s << 1;
    QTest::newRow("left Shift held, right Shift tapped") << u"ssS"_s << 0;
    QTest::newRow("release without a press") << u"S.S.sS"_s << 0;
}

void TestDoubleShiftMonitor::taps()
{
    QFETCH(const QString, keys);
    QFETCH(const int, expected);
    MemoryClock clock;
    MemoryEventTap tap;
    DoubleShiftMonitor monitor(tap, clock);
    const QSignalSpy doubleShift(&monitor, &DoubleShiftMonitor::doubleShift);
    monitor.start();
    for (const QChar key : keys) {
        switch (key.unicode()) {
        case u's':
            tap.setFlags(Qt::ShiftModifier);
            break;
        case u'c':
            tap.setFlags(Qt::ShiftModifier | Qt::ControlModifier);
            break;
        case u'S':
        case u'C':
            tap.setFlags(Qt::NoModifier);
            break;
        case u'x':
            tap.press();
            break;
        case u'.':
            clock.advance(100ms);
            break;
        default:
            clock.advance(1ms);
        }
    }
    QCOMPARE(doubleShift.count(), expected);
}

QTEST_GUILESS_MAIN(TestDoubleShiftMonitor)

#include "tst_doubleshiftmonitor.moc"
