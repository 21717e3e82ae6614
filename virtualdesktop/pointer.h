// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/displayconnection.h"

#include <QPoint>

namespace vesk {

/// The user's mouse.
class Pointer final
{
public:
    explicit Pointer(DisplayConnection &display);

    void moveTo(QPoint place);

    /// Presses the left button at one point, moves through the points in between, and releases it at the
    /// other.
    void drag(QPoint from, QPoint to);

    /// Clicks the left button `times` times at this point of the screen, at the speed of a double click.
    void click(QPoint place, int times = 1);

    void middleClick(QPoint place);

    /// Whether a program has grabbed the pointer.
    [[nodiscard]] bool isTaken() const;

private:
    static constexpr quint8 kLeftButton = 1;
    static constexpr quint8 kMiddleButton = 2;

    void button(quint8 type, quint8 number = kLeftButton);

    DisplayConnection &m_display;
};

} // namespace vesk
