// SPDX-License-Identifier: MIT
//
// Measures from the hot key until the note is durably in the file and the notice is on the screen. The notice
// only appears after that.
#include "bench.h"
#include "stopwatch.h"

#include "virtualdesktop/texteditor.h"
#include "virtualdesktop/veskfacts.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QThread>
#include <QUuid>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr auto kBound = 10s;

/// Measures durably writing such a note to a separate file beside the store, and then showing a window.
void measureFloor(Bench &bench, Stopwatch &watch, Table::Row &row)
{
    row.floorName = u"an SQLite insert, then a bare window"_s;
    SQLite::Database database(bench.desktop.notes().path().toStdString() + ".floor",
                              SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    database.exec("PRAGMA journal_mode = WAL");
    database.exec("PRAGMA synchronous = FULL");
    database.exec("CREATE TABLE Note (id TEXT NOT NULL PRIMARY KEY, text TEXT NOT NULL) STRICT");
    SQLite::Statement insert(database, "INSERT INTO Note VALUES (?, ?)");
    for (int i = 0; i < runs(); ++i) {
        QElapsedTimer timer;
        timer.start();
        insert.bind(1, QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString());
        insert.bind(2, "Line " + std::to_string(i) + " that is captured");
        insert.exec();
        insert.reset();
        const double written = static_cast<double>(timer.nsecsElapsed()) / 1e6;
        const std::optional<double> shown = watch.floor();
        if (!shown)
            return complain("the floor of the captures is not one");
        row.floors[bench.notes].add(written + *shown);
    }
}

} // namespace

void benchCapture(Bench &bench)
{
    VirtualDesktop &desktop = bench.desktop;
    const std::unique_ptr<ChildProcess> vesk = startQuiet(bench);
    if (!vesk)
        return;
    // One more time, to find the position of the notice.
    QStringList lines;
    for (int i = 0; i <= runs(); ++i)
        lines.append(u"Line %1 that is captured"_s.arg(i));
    const std::unique_ptr<TextEditor> editor = TextEditor::open(desktop, lines);
    if (!editor)
        return complain("the editor did not start");
    Table::Row &row =
        bench.table.row(u"hot key → note durable and notice on screen"_s, {.usual = 50, .most = {}});
    Stopwatch watch(desktop);
    measureFloor(bench, watch, row);
    QRect notice;
    for (int i = 0; i <= runs(); ++i) {
        if (!desktop.windows().waitGone(kSaved, kBound) || !editor->selectLine(i))
            return complain("nothing could be selected");
        const QByteArray before = notice.isNull() ? QByteArray() : watch.settledPixels(notice);
        watch.press({XK_Super_L, XK_Alt_L, XK_n});
        const std::optional<double> time =
            notice.isNull() ? watch.untilViewable(kSaved) : watch.untilChanged(notice, before);
        const std::optional<Window> shown = desktop.windows().waitViewable(kSaved, kBound);
        watch.release();
        if (!time || !shown)
            return complain("nothing was captured");
        if (!notice.isNull())
            row.sizes[bench.notes].add(*time);
        notice = QRect(shown->geometry.center() - QPoint(40, 8), QSize(80, 16));
        QThread::msleep(static_cast<unsigned long>(kCaptureGate.count()));
    }
    if (desktop.notes().texts().filter(u"that is captured"_s).size() != lines.size())
        complain("not all captures are in the file");
}

} // namespace vesk
