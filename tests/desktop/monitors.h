// SPDX-License-Identifier: MIT
#pragma once

#include "virtualdesktop/displayconnection.h"

#include <QRect>

namespace vesk {

/// The desktop's monitors, as a user plugs them in and out: parts of the server's single large screen.
class Monitors final
{
public:
    explicit Monitors(DisplayConnection &display);

    /// Replaces the monitors with these; the first is the primary one.
    void set(const QList<QRect> &monitors);

private:
    [[nodiscard]] xcb_atom_t nameOf(qsizetype index) const;

    DisplayConnection &m_display;
    quint32 m_output = XCB_NONE;
    qsizetype m_count = 0;
};

} // namespace vesk
