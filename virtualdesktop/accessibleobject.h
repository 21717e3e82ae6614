// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>

namespace vesk {

/// What an application tells a screen reader of one thing that it shows.
struct AccessibleObject
{
    /// Those that the tests ask for, with the numbers of the accessibility bus.
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
    /// On the screen.
    QRect area;
    /// Of an editable text: its content, and how many characters are in front of the caret; else -1.
    QString text{};
    int caret = -1;

    [[nodiscard]] bool is(State state) const { return (states >> static_cast<int>(state) & 1) != 0; }
};

} // namespace vesk
