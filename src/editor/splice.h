// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>

namespace vesk {

/// A change of a text: at `position`, `inserted` took the place of `removed`. In UTF-16 units.
struct Splice
{
    qsizetype position = 0;
    QString removed;
    QString inserted;

    [[nodiscard]] qsizetype growth() const { return inserted.size() - removed.size(); }
    /// Whether nothing has changed.
    [[nodiscard]] bool isEmpty() const { return removed.isEmpty() && inserted.isEmpty(); }
    friend bool operator==(const Splice &, const Splice &) = default;
};

/// What has become of a text, as one change that tears no surrogate pair of `before` apart.
[[nodiscard]] Splice difference(const QString &before, const QString &after);

/// Where a position is after `length` units at `start` were replaced by `inserted` units: after them, if it
/// was in what was replaced or at an end of it.
[[nodiscard]] inline qsizetype moved(qsizetype position, qsizetype start, qsizetype length,
                                     qsizetype inserted)
{
    if (position < start)
        return position;
    return std::max(position, start + length) - length + inserted;
}

/// What is selected: the text between `anchor`, where the selection was begun, and `caret`. Nothing is
/// selected where both are the same. In UTF-16 units.
struct Selection
{
    qsizetype anchor = 0;
    qsizetype caret = 0;

    [[nodiscard]] static Selection at(qsizetype caret) { return {.anchor = caret, .caret = caret}; }
    [[nodiscard]] qsizetype start() const { return std::min(anchor, caret); }
    [[nodiscard]] qsizetype end() const { return std::max(anchor, caret); }
    [[nodiscard]] qsizetype length() const { return end() - start(); }
    [[nodiscard]] bool isEmpty() const { return anchor == caret; }
    friend bool operator==(const Selection &, const Selection &) = default;
};

} // namespace vesk
