// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

namespace vesk {

/// Durations of one thing done again and again, in milliseconds.
class Figures final
{
public:
    explicit Figures(QString name);

    void add(double milliseconds) { m_values.append(milliseconds); }
    /// Prints the name, how often, the median, the 95th percentile and the longest.
    void print() const;

private:
    QString m_name;
    QList<double> m_values;
};

} // namespace vesk
