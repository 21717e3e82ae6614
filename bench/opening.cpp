// SPDX-License-Identifier: MIT
//
// Measures opening a note in the middle of the list with a key, and typing into it.
#include "bench.h"
#include "stopwatch.h"

#include "virtualdesktop/veskfacts.h"

#include <QThread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr unsigned long kPause = 500;

/// Drags the list's thumb to the middle, and opens the card there.
void openMiddle(Bench &bench, const QRect &panel)
{
    const int x = panel.right() - 6;
    bench.desktop.pointer().moveTo({x, panel.top() + 112});
    QThread::msleep(kPause);
    bench.desktop.pointer().drag({x, panel.top() + 112}, {x, panel.top() + 320});
    QThread::msleep(kPause);
    bench.desktop.pointer().click(panel.center());
    QThread::msleep(2 * kPause);
}

/// Measures how long each of these keys takes until the strip changes.
bool timeKey(Stopwatch &watch, const QRect &strip, xcb_keysym_t key, Figures &figures)
{
    const QByteArray before = watch.settledPixels(strip);
    watch.press({key});
    watch.release();
    const std::optional<double> time = watch.untilChanged(strip, before);
    if (time)
        figures.add(*time);
    return time.has_value();
}

} // namespace

void benchOpening(Bench &bench)
{
    const std::unique_ptr<ChildProcess> vesk = startQuiet(bench);
    const std::optional<Window> panel = vesk ? showPanel(bench) : std::nullopt;
    if (!panel)
        return;
    Table::Row &openings = bench.table.row(u"Return → note in the middle of the list begins to open"_s);
    Table::Row &edits = bench.table.row(u"key in that note → painted"_s, {.usual = 16, .most = {}});
    const auto figuresOf = [&](Table::Row &row) -> Figures & {
        // A list of ten is the reference for the others.
        const bool isTen = bench.notes < *std::begin(Table::kSizes);
        row.floorName = u"in a list of ten"_s;
        return isTen ? row.floors[Table::kUsual] : row.sizes[bench.notes];
    };
    openMiddle(bench, panel->geometry);
    Stopwatch watch(bench.desktop);
    // The left edge of the texts.
    const QRect strip(panel->geometry.topLeft() + QPoint(26, 110), QSize(60, 440));
    for (int i = 0; i < runs(); ++i) {
        bench.desktop.keyboard().tap({XK_Escape}, kFinger);
        QThread::msleep(kPause);
        if (!timeKey(watch, strip, XK_Return, figuresOf(openings)))
            return complain("the note did not open");
        QThread::msleep(kPause);
    }
    const QRect lines(panel->geometry.topLeft() + QPoint(26, 110), QSize(380, 440));
    // Each key shows the caret again, so its blinking does not interfere.
    bench.desktop.keyboard().tap({XK_Control_L, XK_Home}, kFinger);
    for (int i = 0; i < runs(); ++i) {
        if (!timeKey(watch, lines, XK_a, figuresOf(edits)))
            return complain("a key in the note changed nothing");
    }
    hidePanel(bench);
    // That the note is in the file proves that the text was typed into it.
    QThread::sleep(2);
    if (!bench.desktop.notes().texts().filter(QString(runs(), u'a')).count())
        complain("the keys did not come into the note");
}

} // namespace vesk
