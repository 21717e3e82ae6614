// SPDX-License-Identifier: MIT
#include "figures.h"

#include <algorithm>
#include <cmath>

namespace vesk {

double Figures::at(double part) const
{
    if (m_values.isEmpty())
        return 0;
    QList<double> sorted = m_values;
    std::ranges::sort(sorted);
    const auto index = static_cast<qsizetype>(std::ceil(part * static_cast<double>(sorted.size()))) - 1;
    return sorted.at(std::max(qsizetype{0}, index));
}

double Figures::percentAbove(double value) const
{
    if (m_values.isEmpty())
        return 0;
    const auto above = std::ranges::count_if(m_values, [value](double each) { return each > value; });
    return 100.0 * static_cast<double>(above) / static_cast<double>(m_values.size());
}

} // namespace vesk
