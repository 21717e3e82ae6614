// SPDX-License-Identifier: MIT
//
// How fast and how lean Vesk is with 10,000 notes, on a desktop of its own. Prints figures and judges
// nothing. Machines are noisy: compare with the floor of the same run.
#include "figures.h"
#include "stopwatch.h"

#include "desktop/guard.h"
#include "desktop/texteditor.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QThread>
#include <QUuid>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr int kNotes = 10'000;
constexpr int kManyNotes = 100'000;
constexpr int kNoteLength = 488;
constexpr int kStarts = 15;
constexpr int kPanels = 40;
constexpr int kSearches = 4;
constexpr int kCaptures = 20;
constexpr int kFloors = 40;
constexpr auto kBound = 10s;
constexpr auto kCaptureGate = 2100ms;
constexpr auto kIdle = 10s;

int fail(const char *what)
{
    std::fprintf(stderr, "The bench failed: %s\n", what);
    return 1;
}

/// Fills the store that a first start has made, one note a minute back from an hour ago: those from
/// `first` to before `end`.
void fill(const QString &path, int first, int end)
{
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Transaction transaction(database);
    SQLite::Statement insert(database,
                             "INSERT INTO Note (id, text, createdAt, updatedAt, isPinned, sourceApp) "
                             "VALUES (?, ?, ?, ?, 0, 'Mousepad')");
    const QString filler = u"Lorem ipsum dolor sit amet, consectetur adipiscing elit. "_s.repeated(10);
    const qint64 anHourAgo = (QDateTime::currentMSecsSinceEpoch() - 3'600'000) * 1000;
    for (int i = first; i < end; ++i) {
        const QString text = (u"Note %1\n"_s.arg(i) + filler).left(kNoteLength);
        const qint64 date = anHourAgo - qint64{i} * 60'000'000;
        insert.bind(1, QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString());
        insert.bind(2, text.toStdString());
        insert.bind(3, int64_t{date});
        insert.bind(4, int64_t{date});
        insert.exec();
        insert.reset();
    }
    transaction.commit();
}

/// Resident memory of a process in MB.
double residentMemory(qint64 pid)
{
    QFile status(u"/proc/%1/status"_s.arg(pid));
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith("VmRSS:"))
            return line.mid(6).trimmed().split(' ').constFirst().toDouble() / 1000;
    }
    return 0;
}

/// How often the threads of a process have gone to sleep so far.
qint64 wakeUps(qint64 pid)
{
    qint64 count = 0;
    const QString tasks = u"/proc/%1/task"_s.arg(pid);
    const QStringList threads = QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &thread : threads) {
        QFile status(tasks + u'/' + thread + u"/status"_s);
        if (!status.open(QIODevice::ReadOnly))
            continue;
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("voluntary_ctxt_switches:"))
                count += line.mid(24).trimmed().toLongLong();
        }
    }
    return count;
}

void benchStarts(VirtualDesktop &desktop)
{
    Figures starts(u"start to hot keys armed (bar 150)"_s);
    for (int i = 0; i < kStarts; ++i) {
        QElapsedTimer timer;
        timer.start();
        const std::unique_ptr<ChildProcess> vesk = desktop.startVesk();
        if (vesk)
            starts.add(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    starts.print();
}

void benchPanel(VirtualDesktop &desktop)
{
    Stopwatch watch(desktop);
    Figures painted(u"Super-Alt-T to panel painted, warm (bar 25)"_s);
    const QSize screen = desktop.display().size();
    const QPoint inPanel(screen.width() - 230, screen.height() - 90);
    for (int i = 0; i < kPanels; ++i) {
        watch.press({XK_Super_L, XK_Alt_L, XK_t});
        const std::optional<double> time = watch.untilPainted(inPanel);
        watch.release();
        if (time && i > 0) // The first is not warm.
            painted.add(*time);
        QThread::msleep(150);
        desktop.keyboard().tap({XK_Escape}, 20ms);
        if (!desktop.windows().waitGone(u"Vesk"_s, kBound))
            return;
        QThread::msleep(150);
    }
    painted.print();
}

/// Times each key of a search that every note satisfies at first, to its last letter and back. The first
/// picture that differs has the matches marked.
void benchSearch(VirtualDesktop &desktop, int notes)
{
    Figures letters(u"search key to list painted, %L1 notes"_s.arg(notes));
    Figures backspaces(u"search key taken back to list painted, %L1 notes"_s.arg(notes));
    desktop.keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, 20ms);
    const std::optional<Window> panel = desktop.windows().waitViewable(u"Vesk"_s, kBound);
    if (!panel || !desktop.windows().waitFocused(*panel, kBound))
        return;
    desktop.keyboard().tap({XK_Control_L, XK_f}, 20ms);
    Stopwatch watch(desktop);
    const QRect list(panel->geometry.topLeft() + QPoint(20, 140), QSize(300, 120));
    const auto time = [&](xcb_keysym_t key, Figures &figures) {
        const QByteArray before = watch.settledPixels(list);
        watch.press({key});
        // At once, since a key that is held repeats itself.
        watch.release();
        const std::optional<double> painted = watch.untilChanged(list, before);
        if (painted)
            figures.add(*painted);
        return painted.has_value();
    };
    constexpr std::array kWord{XK_n, XK_o, XK_t, XK_e};
    for (int i = 0; i < kSearches; ++i) {
        for (const xcb_keysym_t key : kWord) {
            // Without an answer there is nothing more to wait for.
            if (!time(key, letters))
                return;
        }
        for (size_t back = 0; back < kWord.size(); ++back) {
            if (!time(XK_BackSpace, backspaces))
                return;
        }
    }
    letters.print();
    backspaces.print();
    desktop.keyboard().tap({XK_Escape}, 20ms);
    desktop.keyboard().tap({XK_Escape}, 20ms);
    if (!desktop.windows().waitGone(u"Vesk"_s, kBound))
        std::printf("the panel did not go after the search\n");
}

void benchCapture(VirtualDesktop &desktop, TextEditor &editor)
{
    Stopwatch watch(desktop);
    Figures captures(u"Super-Alt-N to note durable and notice on screen (bar 50)"_s);
    for (int i = 0; i < kCaptures; ++i) {
        if (!editor.selectLine(i))
            return;
        watch.press({XK_Super_L, XK_Alt_L, XK_n});
        if (const std::optional<double> time = watch.untilViewable(u"Saved to Vesk"_s))
            captures.add(*time);
        QThread::msleep(50);
        watch.release();
        QThread::msleep(std::chrono::milliseconds(kCaptureGate).count());
    }
    captures.print();
}

/// The same search with many more notes; ends what runs with the few.
void benchManyNotes(VirtualDesktop &desktop, std::unique_ptr<ChildProcess> vesk)
{
    vesk.reset();
    fill(desktop.notes().path(), kNotes, kManyNotes);
    vesk = desktop.startVesk();
    if (!vesk)
        return;
    QThread::sleep(3);
    benchSearch(desktop, kManyNotes);
    if (!vesk->isRunning()) {
        std::printf("Vesk ended: %s\n", qPrintable(vesk->errorOutput()));
        return;
    }
    std::printf("memory, hidden, %d notes, after a search: %.1f MB\n", kManyNotes,
                residentMemory(vesk->pid()));
}

/// The figures of the note editor, by a program of its own.
void benchEditor(VirtualDesktop &desktop)
{
    const QString program = QCoreApplication::applicationDirPath() + u"/vesk-bench-editor"_s;
    const std::unique_ptr<ChildProcess> editor = desktop.run(program);
    if (editor && editor->waitForExit(120s))
        std::printf("%s", qPrintable(editor->output()));
    else
        std::printf("the editor's bench did not come to an end\n");
}

/// The searches alone if `isSearchOnly`.
int bench(bool isSearchOnly)
{
    QString problem;
    const std::unique_ptr<VirtualDesktop> desktop = VirtualDesktop::start(problem);
    if (!desktop)
        return fail(qPrintable(problem));
    if (!desktop->prepareUser() || !desktop->startVesk())
        return fail("Vesk did not start.");
    fill(desktop->notes().path(), 0, kNotes);
    std::printf("%d notes of %d characters\n", kNotes, kNoteLength);

    if (isSearchOnly) {
        std::unique_ptr<ChildProcess> vesk = desktop->startVesk();
        if (!vesk)
            return fail("Vesk did not start.");
        benchSearch(*desktop, kNotes);
        benchManyNotes(*desktop, std::move(vesk));
        return 0;
    }
    Figures floors(u"floor: a key press and a bare window"_s);
    Stopwatch watch(*desktop);
    for (int i = 0; i < kFloors; ++i) {
        if (const std::optional<double> time = watch.floor())
            floors.add(*time);
    }
    floors.print();
    benchStarts(*desktop);

    std::unique_ptr<ChildProcess> vesk = desktop->startVesk();
    if (!vesk)
        return fail("Vesk did not start.");
    QThread::sleep(3);
    std::printf("memory, hidden, before the first use (bar 60): %.1f MB\n", residentMemory(vesk->pid()));
    const qint64 before = wakeUps(vesk->pid());
    QThread::msleep(std::chrono::milliseconds(kIdle).count());
    std::printf("wake-ups in 10 s, hidden (bar 0): %lld\n",
                static_cast<long long>(wakeUps(vesk->pid()) - before));
    benchPanel(*desktop);

    QStringList lines;
    for (int i = 0; i < kCaptures; ++i)
        lines.append(u"Line %1 that is captured"_s.arg(i));
    const std::unique_ptr<TextEditor> editor = TextEditor::open(*desktop, lines);
    if (!editor)
        return fail("The editor did not start.");
    benchCapture(*desktop, *editor);
    std::printf("memory, hidden, after use (bar 66): %.1f MB\n", residentMemory(vesk->pid()));
    benchSearch(*desktop, kNotes);
    benchManyNotes(*desktop, std::move(vesk));
    benchEditor(*desktop);
    return 0;
}

} // namespace

} // namespace vesk

int main(int argc, char **argv)
{
    return vesk::runGuarded([&] {
        const QCoreApplication application(argc, argv);
        return vesk::bench(QCoreApplication::arguments().contains(u"search"));
    });
}
