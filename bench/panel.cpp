// SPDX-License-Identifier: MIT
//
// Measures from the hot key until the panel is painted and has the focus.
#include "bench.h"
#include "stopwatch.h"

#include "virtualdesktop/veskfacts.h"

#include <QThread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

void showAgainAndAgain(Bench &bench, Table::Row &row)
{
    constexpr unsigned long kPause = 150;
    const std::unique_ptr<ChildProcess> vesk = startQuiet(bench);
    if (!vesk)
        return;
    // The first run warms up and is not counted.
    const std::optional<Window> panel = showPanel(bench);
    if (!panel || !hidePanel(bench))
        return;
    Stopwatch watch(bench.desktop);
    row.floorName = u"a bare window"_s;
    for (int i = 0; i < runs(); ++i) {
        if (const std::optional<double> floor = watch.floor())
            row.floors[bench.notes].add(*floor);
        QThread::msleep(kPause);
        watch.press({XK_Super_L, XK_Alt_L, XK_t});
        const std::optional<double> time = watch.untilPainted(panel->geometry.center(), panel->id);
        watch.release();
        if (!time)
            return complain("the panel did not come up");
        row.sizes[bench.notes].add(*time);
        QThread::msleep(kPause);
        if (!hidePanel(bench))
            return;
    }
}

} // namespace

void benchPanel(Bench &bench)
{
    showAgainAndAgain(
        bench, bench.table.row(u"hot key → panel painted and taking keys"_s, {.usual = 25, .most = {}}));
    const auto kScale = u"QT_SCALE_FACTOR"_s;
    bench.desktop.setVariable(kScale, u"2"_s);
    showAgainAndAgain(bench, bench.table.row(u"the same at scale 2"_s, {.usual = 50, .most = {}}));
    bench.desktop.setVariable(kScale, u"1"_s);
}

} // namespace vesk
