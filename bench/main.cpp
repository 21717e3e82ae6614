// SPDX-License-Identifier: MIT
//
// Measures how fast and how lean Vesk is with few, many and very many notes, on a virtual desktop. Prints one
// table and judges nothing. Machines are noisy: compare with the floors of the same run.
#include "bench.h"

#include "virtualdesktop/guard.h"

#include <QCoreApplication>
#include <QDate>
#include <QElapsedTimer>
#include <QFile>
#include <QSysInfo>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

struct NamedPart
{
    const char *name;
    Part run;
};

/// Ordered, because the last ones change the notes.
constexpr NamedPart kParts[] = {
    {"start", benchStart},         {"panel", benchPanel},     {"search", benchSearch},
    {"scrolling", benchScrolling}, {"opening", benchOpening}, {"capture", benchCapture},
    {"editor", benchEditor},       {"memory", benchMemory},
};

constexpr int kTen = 10;

QString processor()
{
    QFile file(u"/proc/cpuinfo"_s);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    const QList<QByteArray> lines = file.readAll().split('\n');
    const auto line =
        std::ranges::find_if(lines, [](const QByteArray &each) { return each.startsWith("model name"); });
    return line == lines.end() ? QString() : QString::fromUtf8(*line).section(u": "_s, 1);
}

/// One line about the machine and the date.
QString surroundings()
{
    double load = 0;
    getloadavg(&load, 1);
    return u"%1: %2 × %3, %4, Qt %5, Xvfb and openbox, load at the start %6"_s
        .arg(QDate::currentDate().toString(Qt::ISODate))
        .arg(QThread::idealThreadCount())
        .arg(processor(), QSysInfo::prettyProductName(), QString::fromLatin1(qVersion()))
        .arg(load, 0, 'f', 1);
}

bool isWanted(const NamedPart &part, const QStringList &names)
{
    return names.isEmpty() || names.contains(QString::fromLatin1(part.name));
}

/// Runs all requested parts with this number of notes. Returns false if the desktop could not be started.
bool benchNotes(int notes, const QStringList &names, Table &table)
{
    QString problem;
    const std::unique_ptr<VirtualDesktop> desktop = VirtualDesktop::start(problem);
    // The first start creates the store, which exists when it ends.
    const std::unique_ptr<ChildProcess> first =
        desktop && desktop->prepareUser() ? desktop->startVesk() : nullptr;
    if (!first || !first->quit()) {
        complain(problem.isEmpty() ? "Vesk did not start" : qPrintable(problem));
        return false;
    }
    fillStore(desktop->notes().path(), notes);
    Bench bench{.desktop = *desktop, .table = table, .notes = notes};
    for (const NamedPart &part : kParts) {
        if (!isWanted(part, names) || (notes == kTen && part.run != benchOpening))
            continue;
        QElapsedTimer timer;
        timer.start();
        part.run(bench);
        std::fprintf(stderr, "%d notes: %s, %lld s\n", notes, part.name,
                     static_cast<long long>(timer.elapsed() / 1000));
    }
    return true;
}

int bench(const QStringList &names)
{
    for (const QString &name : names) {
        if (std::ranges::none_of(kParts, [&](const NamedPart &part) { return isWanted(part, {name}); })) {
            std::fprintf(stderr, "Parts of the bench:");
            for (const NamedPart &part : kParts)
                std::fprintf(stderr, " %s", part.name);
            std::fprintf(stderr, "\n");
            return 2;
        }
    }
    const QString header = surroundings();
    Table table;
    const bool hasOpening = names.isEmpty() || names.contains(u"opening"_s);
    bool isDone = true;
    for (const int notes : Table::kSizes)
        isDone = isDone && benchNotes(notes, names, table);
    isDone = isDone && (!hasOpening || benchNotes(kTen, names, table));
    std::printf("%s\n\n", qPrintable(header));
    table.print();
    return isDone ? 0 : 1;
}

} // namespace

} // namespace vesk

int main(int argc, char **argv)
{
    return vesk::runGuarded([&] {
        const QCoreApplication application(argc, argv);
        return vesk::bench(QCoreApplication::arguments().mid(1));
    });
}
