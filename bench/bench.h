// SPDX-License-Identifier: MIT
#pragma once

#include "table.h"

#include "virtualdesktop/virtualdesktop.h"

namespace SQLite {
class Database;
}

namespace vesk {

/// A desktop whose user has a given number of notes, and the table for the results.
struct Bench
{
    VirtualDesktop &desktop;
    Table &table;
    int notes = 0;
};

/// A subject to measure. Starts Vesk itself, and reports on standard error what did not work.
using Part = void (*)(Bench &bench);

void benchStart(Bench &bench);
void benchPanel(Bench &bench);
void benchSearch(Bench &bench);
void benchScrolling(Bench &bench);
void benchOpening(Bench &bench);
void benchCapture(Bench &bench);
void benchEditor(Bench &bench);
void benchMemory(Bench &bench);

/// The minimum number of repetitions: 30, or VESK_BENCH_RUNS for a quick look.
[[nodiscard]] int runs();

/// Writes this many notes into a store that a first start has created, one for each minute up to an hour ago.
void fillStore(const QString &path, int notes);

/// Writes a note into a store; the time is in microseconds since 1970.
void writeNote(SQLite::Database &store, const QString &text, qint64 time);

/// Starts Vesk and waits until it is idle. Null if it did not start.
[[nodiscard]] std::unique_ptr<ChildProcess> startQuiet(Bench &bench);

/// Shows the panel; nullopt if it did not appear with the focus.
[[nodiscard]] std::optional<Window> showPanel(Bench &bench);
/// Presses Escape until the panel is gone. Returns false if it stayed.
bool hidePanel(Bench &bench);

/// Reports what a part could not do.
void complain(const char *what);

} // namespace vesk
