// SPDX-License-Identifier: MIT
//
// Measures how much memory Vesk uses, and how often it wakes up, while hidden.
#include "bench.h"

#include "virtualdesktop/veskfacts.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QThread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

/// Vesk releases what memory it can after it is hidden.
constexpr unsigned long kQuietSeconds = 5;
constexpr unsigned long kIdleSeconds = 10;
constexpr int kCaptures = 1000;

/// The sum of the numbers on all lines of a kernel status file that start with `name`.
qint64 sumOf(const QString &path, const QByteArray &name)
{
    QFile status(path);
    qint64 sum = 0;
    if (!status.open(QIODevice::ReadOnly))
        return sum;
    const QList<QByteArray> lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(name))
            sum += line.mid(name.size()).trimmed().split(' ').constFirst().toLongLong();
    }
    return sum;
}

/// Resident memory of a process in MB: "VmRSS:" is the total, "RssFile:" the share of its libraries.
double residentMemory(qint64 pid, const QByteArray &kind)
{
    return static_cast<double>(sumOf(u"/proc/%1/status"_s.arg(pid), kind)) / 1000;
}

/// How often the threads of a process have gone to sleep so far.
qint64 wakeUps(qint64 pid)
{
    qint64 count = 0;
    const QString tasks = u"/proc/%1/task/"_s.arg(pid);
    const QStringList threads = QDir(tasks).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &thread : threads)
        count += sumOf(tasks + thread + u"/status"_s, "voluntary_ctxt_switches:");
    return count;
}

/// Shows the panel repeatedly, searches, and walks through the list.
void use(Bench &bench)
{
    constexpr int kTimes = 10;
    constexpr int kCards = 20;
    Keyboard &keyboard = bench.desktop.keyboard();
    for (int i = 0; i < kTimes; ++i) {
        if (!showPanel(bench))
            return;
        for (const xcb_keysym_t key : {XK_n, XK_o, XK_t, XK_e}) {
            keyboard.tap({key}, kFinger);
            QThread::msleep(100);
        }
        keyboard.tap({XK_Escape}, kFinger);
        for (int card = 0; card < kCards; ++card) {
            keyboard.tap({XK_Down}, kFinger);
            QThread::msleep(20);
        }
        keyboard.tap({XK_Return}, kFinger);
        QThread::msleep(500);
        if (!hidePanel(bench))
            return;
    }
    QThread::sleep(kQuietSeconds);
}

/// Makes Vesk keep 1,000 texts, one after the other. Returns false if any of them was not kept.
bool capture(const Bench &bench, int first)
{
    const QString name = u"vesk-bench"_s;
    QDBusConnection bus = QDBusConnection::connectToBus(bench.desktop.busAddress(), name);
    bool isKept = true;
    for (int i = 0; i < kCaptures && isKept; ++i) {
        QDBusMessage call = QDBusMessage::createMethodCall(u"org.vesk.Vesk"_s, u"/org/vesk/Vesk"_s,
                                                           u"org.vesk.Vesk"_s, u"AddNote"_s);
        call.setArguments({u"Kept %1: %2"_s.arg(first + i).arg(u"some words of a text. "_s.repeated(20))});
        isKept = bus.call(call).type() == QDBusMessage::ReplyMessage;
    }
    QDBusConnection::disconnectFromBus(name);
    QThread::sleep(kQuietSeconds);
    return isKept;
}

} // namespace

void benchMemory(Bench &bench)
{
    const std::unique_ptr<ChildProcess> vesk = startQuiet(bench);
    if (!vesk)
        return;
    const auto enterMemory = [&](const QString &when, double bar) {
        Table::Row &row = bench.table.row(u"memory, hidden%1, MB"_s.arg(when), {.usual = bar, .most = {}});
        row.sizes[bench.notes].add(residentMemory(vesk->pid(), "VmRSS:"));
        row.floorName = u"its libraries"_s;
        row.floors[bench.notes].add(residentMemory(vesk->pid(), "RssFile:"));
    };
    enterMemory({}, 60);
    const qint64 before = wakeUps(vesk->pid());
    QThread::sleep(kIdleSeconds);
    bench.table.row(u"wake-ups a second, hidden and idle"_s, {.usual = 0, .most = {}})
        .sizes[bench.notes]
        .add(static_cast<double>(wakeUps(vesk->pid()) - before) / double{kIdleSeconds});
    use(bench);
    enterMemory(u", after use"_s, 66);
    for (const int thousand : {1, 2}) {
        if (!capture(bench, thousand * kCaptures))
            return complain("a text was not kept");
        enterMemory(u", after %L1 captures"_s.arg(thousand * kCaptures), 66);
    }
}

} // namespace vesk
