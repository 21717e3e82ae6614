// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <algorithm>

namespace vesk {

/// A change of a text: at `position`, `removed` was replaced by `inserted`. In UTF-16 units.
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

/// The difference between two texts as one change that does not split a surrogate pair of `before`.
[[nodiscard]] Splice difference(const QString &before, const QString &after);

/// The new value of a position after `length` units at `start` were replaced by `inserted` units: after them,
/// if it was inside the replaced part or at either end.
[[nodiscard]] inline qsizetype moved(qsizetype position, qsizetype start, qsizetype length,
                                     qsizetype inserted)
{
    if (position < start)
        return position;
    return std::max(position, start + length) - length + inserted;
}

/// The selected text: from `anchor`, where the selection began, to `caret`. Nothing is selected if they are
/// equal. In UTF-16 units.
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
