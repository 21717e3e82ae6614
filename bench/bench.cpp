// SPDX-License-Identifier: MIT
#include "bench.h"

#include "virtualdesktop/veskfacts.h"

#include <SQLiteCpp/SQLiteCpp.h>

#include <QDateTime>
#include <QThread>
#include <QUuid>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

namespace {

constexpr int kNoteLength = 488;
constexpr auto kBound = 10s;
/// Until the copy of the store is made and memory from the start is released.
constexpr unsigned long kQuietSeconds = 5;

} // namespace

int runs()
{
    constexpr int kUsual = 30;
    bool isNumber = false;
    const int wanted = qEnvironmentVariableIntValue("VESK_BENCH_RUNS", &isNumber);
    return isNumber ? std::max(wanted, 1) : kUsual;
}

void writeNote(SQLite::Database &store, const QString &text, qint64 time)
{
    SQLite::Statement insert(store, "INSERT INTO Note (id, text, createdAt, updatedAt, isPinned, sourceApp) "
                                    "VALUES (?, ?, ?, ?, 0, 'Mousepad')");
    insert.bind(1, QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString());
    insert.bind(2, text.toStdString());
    insert.bind(3, int64_t{time});
    insert.bind(4, int64_t{time});
    insert.exec();
}

void fillStore(const QString &path, int notes)
{
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Transaction transaction(database);
    const QString filler = u"Lorem ipsum dolor sit amet, consectetur adipiscing elit. "_s.repeated(10);
    const qint64 anHourAgo = (QDateTime::currentMSecsSinceEpoch() - 3'600'000) * 1000;
    for (int i = 0; i < notes; ++i) {
        const QString text = (u"Note %1\n"_s.arg(i) + filler).left(kNoteLength);
        writeNote(database, text, anHourAgo - qint64{i} * 60'000'000);
    }
    transaction.commit();
}

std::unique_ptr<ChildProcess> startQuiet(Bench &bench)
{
    std::unique_ptr<ChildProcess> vesk = bench.desktop.startVesk();
    if (vesk)
        QThread::sleep(kQuietSeconds);
    else
        complain("Vesk did not start");
    return vesk;
}

std::optional<Window> showPanel(Bench &bench)
{
    bench.desktop.keyboard().tap({XK_Super_L, XK_Alt_L, XK_t}, kFinger);
    std::optional<Window> panel = bench.desktop.windows().waitFocused(kPanel, kBound);
    if (!panel)
        complain("the panel did not come up");
    return panel;
}

bool hidePanel(Bench &bench)
{
    constexpr int kTries = 4;
    for (int i = 0; i < kTries; ++i) {
        bench.desktop.keyboard().tap({XK_Escape}, kFinger);
        if (bench.desktop.windows().waitGone(kPanel, 700ms))
            return true;
    }
    complain("the panel did not go");
    return false;
}

void complain(const char *what)
{
    std::fprintf(stderr, "The bench: %s.\n", what);
}

} // namespace vesk
