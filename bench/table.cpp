// SPDX-License-Identifier: MIT
#include "table.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <iterator>

using namespace Qt::StringLiterals;

namespace vesk {

namespace {

const auto kNothing = u"–"_s;

QString number(double value)
{
    if (value == 0)
        return u"0"_s;
    // Enough digits to tell small values apart; large ones need no fraction.
    const int digits = value < 0.1 ? 3 : value < 1 ? 2 : value < 100 ? 1 : 0;
    return QString::number(value, 'f', digits);
}

const Figures *find(const std::map<int, Figures> &figures, int size)
{
    const auto found = figures.find(size);
    return found == figures.end() || found->second.count() == 0 ? nullptr : &found->second;
}

/// "median / 95th percentile"; the latter in bold if it misses the target.
QString cell(const Figures *figures, std::optional<double> bar)
{
    if (!figures)
        return kNothing;
    const QString most = number(figures->p95());
    const QString judged = bar && figures->p95() > *bar ? u"**%1**"_s.arg(most) : most;
    return figures->count() == 1 ? judged : u"%1 / %2"_s.arg(number(figures->median()), judged);
}

QString barOf(const Table::Bars &bars)
{
    if (!bars.usual)
        return kNothing;
    return bars.most ? u"%1; %2 with 100,000"_s.arg(*bars.usual).arg(*bars.most)
                     : QString::number(*bars.usual);
}

/// The minimum number of repetitions over all numbers of notes.
QString runs(const Table::Row &row)
{
    qsizetype least = 0;
    for (const auto &[size, figures] : row.sizes)
        least = least == 0 ? figures.count() : std::min(least, figures.count());
    return QString::number(least);
}

/// How much every additional 10,000 notes add to the median.
QString growth(const Table::Row &row)
{
    const int fewest = *std::begin(Table::kSizes);
    const int most = *std::rbegin(Table::kSizes);
    const Figures *first = find(row.sizes, fewest);
    const Figures *last = find(row.sizes, most);
    if (!first || !last)
        return kNothing;
    const double each = (last->median() - first->median()) * 10'000 / (most - fewest);
    // Avoid a negative zero.
    return std::abs(each) < 0.005 ? u"0"_s : QString::number(each, 'f', 2);
}

QString floorOf(const Table::Row &row)
{
    const Figures *floor = find(row.floors, Table::kUsual);
    return floor ? u"%1: %2"_s.arg(row.floorName, cell(floor, {})) : kNothing;
}

QString ratio(const Table::Row &row)
{
    const Figures *floor = find(row.floors, Table::kUsual);
    const Figures *figures = find(row.sizes, Table::kUsual);
    if (!floor || !figures || floor->median() == 0)
        return kNothing;
    return number(figures->median() / floor->median());
}

void printLine(const QStringList &cells)
{
    std::printf("| %s |\n", qPrintable(cells.join(u" | "_s)));
}

} // namespace

Table::Row &Table::row(const QString &what, const Bars &bars)
{
    const auto found = std::ranges::find(m_rows, what, &Row::what);
    if (found != m_rows.end())
        return *found;
    return m_rows.emplace_back(Row{.what = what, .bars = bars, .sizes = {}, .floorName = {}, .floors = {}});
}

void Table::print() const
{
    QStringList titles{u"median / p95, in ms"_s, u"bar"_s, u"runs"_s};
    for (const int size : kSizes)
        titles.append(u"%L1"_s.arg(size));
    titles += {u"each 10,000 more"_s, u"floor"_s, u"times the floor"_s};
    printLine(titles);
    printLine(QStringList(titles.size(), u"---"_s));
    for (const Row &row : m_rows) {
        QStringList cells{row.what, barOf(row.bars), runs(row)};
        for (const int size : kSizes) {
            const bool isMost = size == *std::rbegin(kSizes);
            cells.append(cell(find(row.sizes, size), isMost           ? row.bars.most
                                                     : size == kUsual ? row.bars.usual
                                                                      : std::nullopt));
        }
        cells += {growth(row), floorOf(row), ratio(row)};
        printLine(cells);
    }
}

} // namespace vesk
