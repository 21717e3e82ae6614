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
    friend bool operator==(const Splice &, const Splice &) = default;
};

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
