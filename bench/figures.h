// SPDX-License-Identifier: MIT
#pragma once

#include <QList>

namespace vesk {

/// What one thing took, done again and again; milliseconds, if nothing else is said.
class Figures final
{
public:
    void add(double value) { m_values.append(value); }
    void add(const Figures &others) { m_values.append(others.m_values); }

    [[nodiscard]] qsizetype count() const { return m_values.size(); }
    /// The value that this part of all, 0 to 1, does not exceed; 0 if there is none.
    [[nodiscard]] double at(double part) const;
    [[nodiscard]] double median() const { return at(0.5); }
    [[nodiscard]] double p95() const { return at(0.95); }
    /// How many in a hundred exceed this.
    [[nodiscard]] double percentAbove(double value) const;

private:
    QList<double> m_values;
};

} // namespace vesk
