// SPDX-License-Identifier: MIT
//
// Measures from a key in the search field until the list is painted: words that all notes contain, and
// numbers that fewer and fewer contain.
#include "bench.h"
#include "stopwatch.h"

#include "virtualdesktop/veskfacts.h"

#include <QThread>

#include <algorithm>
#include <cstring>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr Table::Bars kBars{.usual = 16, .most = 50};

/// Measures scanning all bytes that the search scans, once and without a match, and then painting a window.
void measureFloor(Bench &bench, Stopwatch &watch, Table::Row &row)
{
    constexpr char kNowhere[] = "notes";
    QList<QByteArray> texts;
    for (const QString &text : bench.desktop.notes().texts())
        texts.append(text.toUtf8());
    row.floorName = u"memmem, then a bare window"_s;
    for (int i = 0; i < runs(); ++i) {
        QElapsedTimer timer;
        timer.start();
        qsizetype found = 0;
        for (const QByteArray &text : std::as_const(texts)) {
            if (memmem(text.constData(), static_cast<size_t>(text.size()), kNowhere, sizeof kNowhere - 1))
                ++found;
        }
        const double searched = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        const std::optional<double> painted = watch.floor();
        if (found > 0 || !painted)
            return complain("the floor of the search is not one");
        row.floors[bench.notes].add(searched + *painted);
    }
}

/// Times each key of a word up to its last letter, and back. Returns false if a key changed nothing.
bool typeWord(Stopwatch &watch, const QRect &list, const QList<xcb_keysym_t> &word, Figures &figures)
{
    const auto time = [&](xcb_keysym_t key) {
        const QByteArray before = watch.settledPixels(list);
        watch.press({key});
        // Release at once, because a held key repeats.
        watch.release();
        const std::optional<double> painted = watch.untilChanged(list, before);
        if (painted)
            figures.add(*painted);
        else
            complain("a key of the search changed nothing");
        return painted.has_value();
    };
    return std::ranges::all_of(word, time)
           && std::ranges::all_of(word, [&](xcb_keysym_t) { return time(XK_BackSpace); });
}

struct Search
{
    QString what;
    /// The first results are painted differently after each key of the word.
    QList<xcb_keysym_t> word;
};

} // namespace

void benchSearch(Bench &bench)
{
    constexpr int kKeys = 5;
    const Search searches[] = {
        {u"search key that leaves the same notes → painted"_s, {XK_n, XK_o, XK_t, XK_e}},
        {u"search key that brings other notes → painted"_s, {XK_7, XK_7, XK_7}},
    };
    const int rounds = std::max(1, runs() / kKeys);
    const std::unique_ptr<ChildProcess> vesk = startQuiet(bench);
    const std::optional<Window> panel = vesk ? showPanel(bench) : std::nullopt;
    if (!panel)
        return;
    Stopwatch watch(bench.desktop);
    const QRect list(panel->geometry.topLeft() + QPoint(20, 140), QSize(300, 120));
    for (const Search &search : searches)
        measureFloor(bench, watch, bench.table.row(search.what, kBars));
    bench.desktop.keyboard().tap({XK_Control_L, XK_f}, kFinger);
    QThread::msleep(500);
    for (int i = 0; i < rounds; ++i) {
        for (const Search &search : searches) {
            // If nothing changed, further keys would only time out.
            if (!typeWord(watch, list, search.word, bench.table.row(search.what).sizes[bench.notes]))
                return;
        }
    }
    hidePanel(bench);
}

} // namespace vesk
