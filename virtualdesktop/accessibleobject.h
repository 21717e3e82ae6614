// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

namespace vesk {

/// What an application tells a screen reader about one of its objects.
struct AccessibleObject
{
    /// The states that tests use, with their numbers on the accessibility bus.
    enum class State {
        Checked = 4,
        Editable = 7,
        Focusable = 11,
        Focused = 12,
        MultiLine = 17,
        Selected = 23,
        Showing = 25,
    };

    QString name;
    QString description;
    QString role;
    quint64 states = 0;
    /// In screen coordinates.
    QRect area;
    /// For an editable text: its content, and the number of characters before the caret; otherwise -1.
    QString text{};
    int caret = -1;

    [[nodiscard]] bool is(State state) const { return (states >> static_cast<int>(state) & 1) != 0; }
};

} // namespace vesk
