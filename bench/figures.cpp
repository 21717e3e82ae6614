// SPDX-License-Identifier: MIT
#include "figures.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace vesk {

Figures::Figures(QString name)
    : m_name(std::move(name))
{
}

void Figures::print() const
{
    if (m_values.isEmpty()) {
        std::printf("%-58s  nothing measured\n", qPrintable(m_name));
        return;
    }
    QList<double> sorted = m_values;
    std::ranges::sort(sorted);
    const auto at = [&sorted](double part) {
        const auto index = static_cast<qsizetype>(std::ceil(part * static_cast<double>(sorted.size()))) - 1;
        return sorted.at(std::max(qsizetype{0}, index));
    };
    constexpr double kMedian = 0.5;
    constexpr double kMost = 0.95;
    std::printf("%-58s  n %3d  median %6.1f ms  p95 %6.1f ms  max %6.1f ms\n", qPrintable(m_name),
                static_cast<int>(sorted.size()), at(kMedian), at(kMost), sorted.constLast());
    std::fflush(stdout);
}

} // namespace vesk
