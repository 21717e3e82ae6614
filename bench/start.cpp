// SPDX-License-Identifier: MIT
//
// Measures from the start of the program until it has its hot keys.
#include "bench.h"

#include <QCoreApplication>
#include <QElapsedTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

void benchStart(Bench &bench)
{
    Table::Row &row = bench.table.row(u"start → hot keys armed"_s, {.usual = 150, .most = {}});
    row.floorName = u"a bare Qt program"_s;
    const QString bare = QCoreApplication::applicationDirPath() + u"/vesk-bench-bare"_s;
    for (int i = 0; i < runs(); ++i) {
        QElapsedTimer timer;
        timer.start();
        const std::unique_ptr<ChildProcess> vesk = bench.desktop.startVesk();
        if (!vesk)
            return complain("Vesk did not start");
        row.sizes[bench.notes].add(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        vesk->quit();

        timer.start();
        const std::unique_ptr<ChildProcess> program = bench.desktop.run(bare);
        if (program && !program->readLine(10s).isEmpty())
            row.floors[bench.notes].add(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
}

} // namespace vesk
