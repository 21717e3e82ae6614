// SPDX-License-Identifier: MIT
#pragma once

#include "desktop/displayconnection.h"

#include <QPoint>

namespace vesk {

/// The user's mouse.
class Pointer final
{
public:
    explicit Pointer(DisplayConnection &display);

    /// Clicks the left button `times` times at this place of the screen, as fast as a double click is.
    void click(QPoint place, int times = 1);

private:
    DisplayConnection &m_display;
};

} // namespace vesk
