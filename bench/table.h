// SPDX-License-Identifier: MIT
#pragma once

#include "figures.h"

#include <QString>

#include <list>
#include <map>
#include <optional>

namespace vesk {

/// All that was measured, as one Markdown table.
class Table final
{
public:
    /// How many notes there are, a column each.
    static constexpr int kSizes[] = {1'000, 10'000, 100'000};
    /// The number that the bars, the floors and the ratios to them are for.
    static constexpr int kUsual = kSizes[1];

    /// Bars are for the 95th percentile.
    struct Bars
    {
        std::optional<double> usual;
        /// With the most notes, if a bar is set for those.
        std::optional<double> most;
    };

    struct Row
    {
        QString what;
        Bars bars;
        std::map<int, Figures> sizes;
        /// The least that this machine can do it in, and how that was found.
        QString floorName;
        std::map<int, Figures> floors;
    };

    /// The row of this name, made at the end if there is none yet. It stays where it is.
    Row &row(const QString &what, const Bars &bars = {});

    void print() const;

private:
    std::list<Row> m_rows;
};

} // namespace vesk
