// SPDX-License-Identifier: MIT
//
// Measures how smoothly the list and a long note scroll: the time from one frame on the screen to the next,
// observed by reading a narrow strip of the panel from the server twice per millisecond.
#include "bench.h"
#include "stopwatch.h"

#include "virtualdesktop/veskfacts.h"

#include <QDateTime>
#include <QThread>

#include <SQLiteCpp/SQLiteCpp.h>
#include <xcb/xtest.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

/// A frame at 60 Hz.
constexpr double kFrame = 16.7;
constexpr auto kTurn = 33ms;
constexpr auto kDuration = 5s;

constexpr quint8 kWheelUp = 4;
constexpr quint8 kWheelDown = 5;

void turnWheel(DisplayConnection &display, quint8 direction)
{
    for (const quint8 type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
        xcb_test_fake_input(display.xcb(), type, direction, XCB_CURRENT_TIME, display.root(), 0, 0, 0);
    xcb_flush(display.xcb());
}

/// The times between frames while `nudge` is called every 33 ms.
template <typename Nudge>
Figures watchMoving(const Stopwatch &watch, const QRect &strip, const Nudge &nudge)
{
    constexpr unsigned long kGlance = 300;
    Figures intervals;
    QElapsedTimer whole;
    QElapsedTimer turn;
    QElapsedTimer frame;
    whole.start();
    turn.start();
    nudge();
    QByteArray shown = watch.pixels(strip);
    while (!whole.hasExpired(std::chrono::milliseconds(kDuration).count())) {
        if (turn.hasExpired(kTurn.count())) {
            nudge();
            turn.start();
        }
        const QByteArray now = watch.pixels(strip);
        if (now != shown) {
            if (frame.isValid())
                intervals.add(static_cast<double>(frame.nsecsElapsed()) / 1e6);
            frame.start();
            shown = now;
        }
        QThread::usleep(kGlance);
    }
    return intervals;
}

/// A note of 100 KB that is the latest one in the store as long as this object lives. Vesk must not be
/// running when it is created or destroyed.
class LongNote final
{
public:
    explicit LongNote(const Bench &bench)
        : m_store(bench.desktop.notes().path().toStdString(), SQLite::OPEN_READWRITE)
    {
        constexpr int kLines = 2000;
        QString text = kTitle;
        for (int i = 0; i < kLines; ++i)
            text += u"\n%1 words of a long note, to a line's end"_s.arg(i);
        writeNote(m_store, text, QDateTime::currentMSecsSinceEpoch() * 1000);
    }

    ~LongNote()
    {
        try {
            m_store.exec("DELETE FROM Note WHERE text LIKE '" + kTitle.toStdString() + "%'");
        } catch (const SQLite::Exception &error) {
            complain(error.what());
        }
    }
    Q_DISABLE_COPY_MOVE(LongNote)

private:
    inline static const QString kTitle = u"The long note"_s;

    SQLite::Database m_store;
};

void enter(Bench &bench, const QString &how, const Figures &intervals)
{
    bench.table.row(how + u", picture → next picture"_s).sizes[bench.notes] = intervals;
    Figures lost;
    lost.add(intervals.percentAbove(2 * kFrame));
    bench.table.row(how + u", pictures that come a frame late, %"_s).sizes[bench.notes] = lost;
}

/// Vesk with its panel open and the mouse over it, and the left edge of the panel's texts.
struct Session
{
    explicit Session(Bench &bench)
        : vesk(startQuiet(bench))
    {
        if (vesk)
            panel = showPanel(bench);
        if (panel) {
            bench.desktop.pointer().moveTo(panel->geometry.center());
            strip = QRect(panel->geometry.topLeft() + QPoint(40, 110), QSize(24, 400));
            QThread::msleep(kRest);
        }
    }

    static constexpr unsigned long kRest = 2000;
    std::unique_ptr<ChildProcess> vesk;
    std::optional<Window> panel;
    QRect strip;
};

void scrollList(Bench &bench)
{
    const Session session(bench);
    if (!session.panel)
        return;
    const Stopwatch watch(bench.desktop);
    enter(bench, u"list, wheel turned"_s,
          watchMoving(watch, session.strip, [&] { turnWheel(bench.desktop.display(), kWheelDown); }));
    QThread::msleep(Session::kRest);
    // The keyboard repeats the key.
    bench.desktop.keyboard().press(XK_Down);
    const Figures moved = watchMoving(watch, session.strip, [] {});
    bench.desktop.keyboard().release(XK_Down);
    enter(bench, u"list, arrow key held"_s, moved);
    hidePanel(bench);
}

void scrollNote(Bench &bench)
{
    const LongNote note(bench);
    const Session session(bench);
    if (!session.panel)
        return;
    bench.desktop.keyboard().tap({XK_Down}, kFinger);
    bench.desktop.keyboard().tap({XK_Return}, kFinger);
    QThread::msleep(Session::kRest);
    // The note opens at its end.
    const Stopwatch watch(bench.desktop);
    enter(bench, u"note of 100 KB, wheel turned"_s,
          watchMoving(watch, session.strip, [&] { turnWheel(bench.desktop.display(), kWheelUp); }));
    hidePanel(bench);
}

} // namespace

void benchScrolling(Bench &bench)
{
    scrollList(bench);
    scrollNote(bench);
}

} // namespace vesk
