// SPDX-License-Identifier: MIT
#pragma once

#include "table.h"

#include "virtualdesktop/virtualdesktop.h"

namespace SQLite {
class Database;
}

namespace vesk {

/// A desktop whose user has so many notes, and where the figures go.
struct Bench
{
    VirtualDesktop &desktop;
    Table &table;
    int notes = 0;
};

/// One subject. Starts Vesk itself, and says on standard error what did not come about.
using Part = void (*)(Bench &bench);

void benchStart(Bench &bench);
void benchPanel(Bench &bench);
void benchSearch(Bench &bench);
void benchScrolling(Bench &bench);
void benchOpening(Bench &bench);
void benchCapture(Bench &bench);
void benchEditor(Bench &bench);
void benchMemory(Bench &bench);

/// How often each thing is done at least: 30 times, or as often as VESK_BENCH_RUNS says, for a quick look.
[[nodiscard]] int runs();

/// Writes so many notes into the store that a first start has made, one a minute back from an hour ago.
void fillStore(const QString &path, int notes);

/// Writes a note into a store, of the time in microseconds since 1970.
void writeNote(SQLite::Database &store, const QString &text, qint64 time);

/// Vesk, once it has nothing more to do after its start. Null if it did not start.
[[nodiscard]] std::unique_ptr<ChildProcess> startQuiet(Bench &bench);

/// Shows the panel; none if it did not come up and take the keyboard.
[[nodiscard]] std::optional<Window> showPanel(Bench &bench);
/// Presses Escape until the panel is gone. False if it stayed.
bool hidePanel(Bench &bench);

/// Says what a part could not do.
void complain(const char *what);

} // namespace vesk
