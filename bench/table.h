// SPDX-License-Identifier: MIT
#pragma once

#include "figures.h"

#include <QString>

#include <list>
#include <map>
#include <optional>

namespace vesk {

/// All results as a Markdown table.
class Table final
{
public:
    /// The numbers of notes, one column each.
    static constexpr int kSizes[] = {1'000, 10'000, 100'000};
    /// The number of notes that targets, floors and ratios to floors refer to.
    static constexpr int kUsual = kSizes[1];

    /// Targets for the 95th percentile.
    struct Bars
    {
        std::optional<double> usual;
        /// The target for the largest number of notes, if there is one.
        std::optional<double> most;
    };

    struct Row
    {
        QString what;
        Bars bars;
        std::map<int, Figures> sizes;
        /// The best that this machine can do, and how that was measured.
        QString floorName;
        std::map<int, Figures> floors;
    };

    /// The row with this name, appended if it does not exist yet. References stay valid.
    Row &row(const QString &what, const Bars &bars = {});

    void print() const;

private:
    std::list<Row> m_rows;
};

} // namespace vesk
