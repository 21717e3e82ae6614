// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

namespace vesk {

/// The results of measuring one thing repeatedly, in milliseconds unless stated otherwise.
class Figures final
{
public:
    void add(double value) { m_values.append(value); }
    void add(const Figures &others) { m_values.append(others.m_values); }

    [[nodiscard]] qsizetype count() const { return m_values.size(); }
    /// The quantile `part`, from 0 to 1; 0 if there are no values.
    [[nodiscard]] double at(double part) const;
    [[nodiscard]] double median() const { return at(0.5); }
    [[nodiscard]] double p95() const { return at(0.95); }
    /// The percentage of values that exceed `value`.
    [[nodiscard]] double percentAbove(double value) const;

private:
    QList<double> m_values;
};

} // namespace vesk
