// SPDX-License-Identifier: MIT
//
// Runs the program that measures the note editor, which does not depend on the number of notes.
#include "bench.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace vesk {

void benchEditor(Bench &bench)
{
    if (bench.notes != Table::kUsual)
        return;
    const QString program = QCoreApplication::applicationDirPath() + u"/vesk-bench-editor"_s;
    const std::unique_ptr<ChildProcess> editor = bench.desktop.run(program);
    if (!editor || !editor->waitForExit(120s))
        return complain("the editor's bench did not come to an end");
    const std::pair<QString, double> notes[] = {{u"10 KB"_s, 16}, {u"1 MB"_s, 33}};
    const QStringList lines = editor->output().split(u'\n', Qt::SkipEmptyParts);
    for (const auto &[note, bar] : notes) {
        Table::Row &row =
            bench.table.row(u"key in a note of %1 → painted"_s.arg(note), {.usual = bar, .most = {}});
        for (const QString &line : lines) {
            if (line.section(u'\t', 0, 0) == note)
                row.sizes[bench.notes].add(line.section(u'\t', 1).toDouble());
        }
    }
}

} // namespace vesk
